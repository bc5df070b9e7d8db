#include "plugin_ui/DialogResource.h"

#include <algorithm>
#include <numeric>

#include "ocore/Faults/Exceptions.h"
#include "platform/DialogTemplate.h"

namespace zent {

namespace {

constexpr std::size_t itemCountPlace = 8; // in the header

[[noreturn]] void raiseBroken() {
    Raise<ResourceAcquisitionException>{}(
        "DialogResource::splitItems() failed - the dialog template is broken\r\n");
}

void makeInvisible(DialogItemBytes& item) {
    constexpr std::uint32_t visible = 0x10000000;
    // The record begins with its style, little-endian: the bit is in the fourth byte.
    item[3] &= ~static_cast<std::byte>(visible >> 24);
}

} // namespace

DialogResource::DialogResource(std::uint32_t id, bool hideItems)
    : ResourceData(id, resourceType::dialog, {}), m_hideItems(hideItems) {}

DialogResource::DialogResource(const DialogResource& other)
    : ResourceData(other), m_items(other.m_items), m_hideItems(other.m_hideItems) {}

DialogResource& DialogResource::operator=(const DialogResource& other) {
    if (this != &other) {
        m_assembled.clear();
        ResourceData::operator=(other);
        m_items = other.m_items;
        m_hideItems = other.m_hideItems;
    }
    return *this;
}

// Items stay whole records of bytes, and are never interpreted further: whatever the designer of a
// page has put into them reaches the window system as it was.
std::size_t DialogResource::getSize() const {
    return std::accumulate(m_items.begin(), m_items.end(), getBytes().size(),
                           [](std::size_t sum, const DialogItemBytes& item) {
        return sum + item.size();
    });
}

const std::byte* DialogResource::getResourceData() const {
    if (getBytes().isEmpty()) {
        Raise<ResourceAcquisitionException>{}(
            "DialogResource::getResourceData() failed - ResourceData ByteBuffer EMPTY!\r\n");
    }
    if (m_items.empty()) {
        return getBytes().data();
    }
    m_assembled.resize(getSize());
    std::byte* place = std::ranges::copy(getBytes().bytes(), m_assembled.data()).out;
    for (const DialogItemBytes& item : m_items) {
        place = std::ranges::copy(item, place).out;
    }
    return m_assembled.data();
}

void DialogResource::load(const ResourceLibrary& library) {
    load(library.loadDialog(getResourceId()).getBytes().bytes());
}

void DialogResource::load(std::span<const std::byte> bytes) { splitItems(bytes); }

void DialogResource::setResource(std::uint32_t id, bool hideItems) {
    setResourceId(id);
    setResourceType(resourceType::dialog);
    m_assembled.clear();
    m_items.clear();
    m_hideItems = hideItems;
}

void DialogResource::splitItems(std::span<const std::byte> bytes) {
    const auto parsed = platform::DialogTemplate::read(bytes);
    if (!parsed) {
        raiseBroken();
    }
    std::vector<DialogItemBytes> items;
    std::size_t offset = parsed->headerSize;
    for (const auto& item : parsed->items) {
        const auto present = bytes.subspan(offset, std::min(item.size, bytes.size() - offset));
        items.emplace_back(present.begin(), present.end());
        items.back().resize(item.size); // the last one may come without its padding
        if (m_hideItems) {
            makeInvisible(items.back());
        }
        offset += item.size;
    }
    // A copy comes first, since the bytes may be these ones.
    ByteBuffer start(bytes.data(), std::min(parsed->headerSize, bytes.size()));
    start.resize(parsed->headerSize);
    this->bytes().swap(start);
    m_items = std::move(items);
    m_assembled.clear();
}

std::uint16_t DialogResource::getCountInHeader() const {
    const auto count = platform::read16(getBytes().bytes(), itemCountPlace);
    if (!count) {
        raiseBroken();
    }
    return *count;
}

void DialogResource::setCountInHeader(std::uint32_t count) {
    std::byte* const place = bytes().data() + itemCountPlace;
    place[0] = static_cast<std::byte>(count & 0xFF);
    place[1] = static_cast<std::byte>(count >> 8 & 0xFF);
}

DialogResource& DialogResource::operator+(DialogResource& other) {
    if (other.getBytes().isEmpty()) {
        return *this;
    }
    if (getBytes().isEmpty()) {
        takeOver(other);
        return *this;
    }
    const std::uint32_t more = other.getCountInHeader();
    if (more == 0) {
        return *this;
    }
    const std::uint32_t own = getCountInHeader();
    if (own + more > maximumItems) {
        Raise<ExceededNumberOfDlgItems>{}(
            "EXCEPTION: DialogResource::operator+() detected >65535 DlgItems.\r\n");
    }
    if (other.m_items.empty()) {
        other.splitItems(other.getBytes().bytes());
    }
    if (m_items.empty() && own != 0) {
        splitItems(getBytes().bytes());
    }
    const std::size_t count = other.m_items.size(); // this grows if the other is this one
    for (std::size_t i = 0; i < count; ++i) {
        m_items.push_back(other.m_items[i]);
    }
    setCountInHeader(own + more);
    return *this;
}

void DialogResource::takeOver(const DialogResource& other) {
    setResource(other.getResourceId(), false);
    bytes().assign(other.getBytes().data(), other.getBytes().size());
    m_items = other.m_items;
}

} // namespace zent

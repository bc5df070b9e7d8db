#include "ocore/Text/CXString.h"

#include <algorithm>
#include <new>

#include "platform/CodePage.h"

namespace zent {

namespace {

constexpr std::int32_t notFound = -1;

std::int32_t positionFrom(std::size_t position) {
    return position == std::u16string_view::npos ? notFound : static_cast<std::int32_t>(position);
}

std::size_t unsignedOf(std::int32_t number) {
    return static_cast<std::size_t>(std::max(number, 0));
}

std::u16string_view viewOf(const char16_t* text) {
    return text ? std::u16string_view(text) : std::u16string_view();
}

char16_t* copyUnits(std::u16string_view from, char16_t* to) {
    return std::copy(from.begin(), from.end(), to);
}

/// A block that holds a text, with room for `capacity` units in all.
StringBlock* newBlock(std::u16string_view text, std::size_t capacity) {
    StringBlock* const block = StringBlock::allocate(capacity);
    copyUnits(text, block->text());
    block->setLength(text.size());
    return block;
}

/// Whether a unit is white space: a space separator of Unicode (Zs), a line end or a tab.
constexpr std::u16string_view whiteSpace =
    u" \t\n\v\f\r\u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009"
    u"\u200A\u2028\u2029\u202F\u205F\u3000";

CXString joined(std::u16string_view a, std::u16string_view b) {
    CXString result;
    const std::size_t length = a.size() + b.size();
    if (length > StringBlock::maximumCapacity) {
        throw std::bad_alloc();
    }
    copyUnits(b, copyUnits(a, result.getBuffer(static_cast<std::int32_t>(length))));
    result.releaseBuffer(static_cast<std::int32_t>(length));
    return result;
}

} // namespace

// Construction and assignment

CXString::CXString(const char16_t* text) : CXString(viewOf(text)) {}

CXString::CXString(std::u16string_view text) : CXString() {
    if (!text.empty()) {
        m_text = newBlock(text, text.size())->text();
    }
}

CXString::CXString(const char* narrow) : CXString() {
    if (narrow) {
        assignNarrow(narrow);
    }
}

CXString::CXString(const char* narrow, std::size_t length) : CXString() {
    if (narrow) {
        assignNarrow({narrow, length});
    }
}

CXString& CXString::operator=(const CXString& other) {
    CXString shared(other);
    std::swap(m_text, shared.m_text);
    return *this;
}

CXString& CXString::operator=(const char16_t* text) {
    assign(viewOf(text));
    return *this;
}

CXString& CXString::operator=(std::u16string_view text) {
    assign(text);
    return *this;
}

CXString& CXString::operator=(const char* narrow) {
    assignNarrow(narrow ? std::string_view(narrow) : std::string_view());
    return *this;
}

void CXString::clear() noexcept {
    release();
    m_text = emptyStringBlock.head.text();
}

void CXString::assign(std::u16string_view text) {
    if (text.empty()) {
        clear();
    } else if (isWritable(text.size())) {
        // The text may be a part of this one.
        std::memmove(m_text, text.data(), text.size() * sizeof(char16_t));
        block()->setLength(text.size());
    } else {
        adopt(newBlock(text, text.size()));
    }
}

void CXString::assignNarrow(std::string_view narrow) {
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(narrow.begin(), narrow.end(), isAscii)) {
        // ASCII is the same in every ANSI code page, and nearly all narrow texts are ASCII.
        clear();
        if (!narrow.empty()) {
            makePrivate(narrow.size());
            std::copy(narrow.begin(), narrow.end(), m_text);
            block()->setLength(narrow.size());
        }
    } else {
        assign(platform::fromAnsi(narrow));
    }
}

// Blocks

/// Whether `units` units can be written into the present block.
bool CXString::isWritable(std::size_t units) const noexcept {
    return block()->count.load(std::memory_order_acquire) == 1 &&
           units <= static_cast<std::size_t>(block()->capacity);
}

/// Puts a fresh block in the place of the present one.
void CXString::adopt(StringBlock* fresh) noexcept {
    release();
    m_text = fresh->text();
}

void CXString::makePrivate(std::size_t capacity) {
    if (!isWritable(capacity)) {
        adopt(newBlock(view(), std::max(capacity, view().size())));
    }
}

char16_t* CXString::getBuffer(std::int32_t minimum) {
    makePrivate(unsignedOf(minimum));
    return m_text;
}

void CXString::releaseBuffer(std::int32_t newLength) {
    makePrivate(0);
    const auto capacity = static_cast<std::size_t>(block()->capacity);
    const std::size_t length =
        newLength < 0
            ? static_cast<std::size_t>(std::find(m_text, m_text + capacity, u'\0') - m_text)
            : std::min(unsignedOf(newLength), capacity);
    if (length == 0) {
        clear();
    } else {
        block()->setLength(length);
    }
}

// Conversion and concatenation

std::string CXString::toNarrow() const { return platform::toAnsi(view()); }

CXString& CXString::operator+=(std::u16string_view text) {
    const std::size_t length = view().size();
    const std::size_t total = length + text.size();
    if (text.empty()) {
        return *this;
    }
    if (isWritable(total)) {
        copyUnits(text, m_text + length);
        block()->setLength(total);
        return *this;
    }
    // The general heap's blocks are as long as their text; a text that grows there gets room ahead,
    // so that appending in a loop takes a time in proportion to the result.
    const std::size_t ahead = length > StringBlock::largestPooled ? length + length / 2 : 0;
    StringBlock* const fresh =
        newBlock(view(), std::max(total, std::min(ahead, StringBlock::maximumCapacity)));
    copyUnits(text, fresh->text() + length);
    fresh->setLength(total);
    adopt(fresh);
    return *this;
}

CXString& CXString::operator+=(const char16_t* text) { return *this += viewOf(text); }

CXString& CXString::operator+=(char16_t unit) { return *this += std::u16string_view(&unit, 1); }

CXString operator+(const CXString& a, const CXString& b) { return joined(a, b); }
CXString operator+(const CXString& a, const char16_t* b) { return joined(a, viewOf(b)); }
CXString operator+(const char16_t* a, const CXString& b) { return joined(viewOf(a), b); }
CXString operator+(const CXString& a, char16_t b) { return joined(a, {&b, 1}); }
CXString operator+(char16_t a, const CXString& b) { return joined({&a, 1}, b); }

// Parts and positions

CXString CXString::left(std::int32_t count) const { return mid(0, count); }

CXString CXString::right(std::int32_t count) const {
    return mid(length() - std::clamp(count, 0, length()), length());
}

CXString CXString::mid(std::int32_t start, std::int32_t count) const {
    const std::size_t from = std::min(unsignedOf(start), view().size());
    const std::u16string_view part = view().substr(from, unsignedOf(count));
    return part.size() == view().size() ? *this : CXString(part);
}

CXString CXString::mid(std::int32_t start) const { return mid(start, length()); }

std::int32_t CXString::find(char16_t unit, std::int32_t start) const noexcept {
    return positionFrom(view().find(unit, unsignedOf(start)));
}

std::int32_t CXString::find(std::u16string_view text, std::int32_t start) const noexcept {
    return positionFrom(view().find(text, unsignedOf(start)));
}

std::int32_t CXString::findLast(char16_t unit) const noexcept {
    return positionFrom(view().rfind(unit));
}

void CXString::trimLeft() { trimLeft(whiteSpace); }
void CXString::trimRight() { trimRight(whiteSpace); }

void CXString::trimLeft(std::u16string_view set) {
    const std::size_t first = std::min(view().find_first_not_of(set), view().size());
    if (first > 0) {
        assign(view().substr(first));
    }
}

void CXString::trimRight(std::u16string_view set) {
    // The end of what stays; npos + 1 is 0, which is that of nothing.
    const std::size_t end = view().find_last_not_of(set) + 1;
    if (end < view().size()) {
        assign(view().substr(0, end));
    }
}

void CXString::trim() {
    trimRight();
    trimLeft();
}

CXString replaceAll(const CXString& source, std::u16string_view search,
                    std::u16string_view replacement) {
    const std::u16string_view text = source.view();
    std::size_t match = search.empty() ? std::u16string_view::npos : text.find(search);
    if (match == std::u16string_view::npos ||
        replacement.find(search) != std::u16string_view::npos) {
        return source;
    }
    CXString result;
    std::size_t done = 0;
    for (; match != std::u16string_view::npos; match = text.find(search, done)) {
        result += text.substr(done, match - done);
        result += replacement;
        done = match + search.size();
    }
    result += text.substr(done);
    return result;
}

} // namespace zent

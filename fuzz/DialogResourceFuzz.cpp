// Dialog templates that are split into items and merged, over any bytes: a template that was taken
// must say the same when it is written. The first two bytes give the length of the first of two
// templates.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>

#include "ocore/Faults/Exceptions.h"
#include "platform/DialogTemplate.h"
#include "plugin_ui/DialogResource.h"

using zent::DialogResource;
using zent::platform::DialogTemplate;
using Bytes = std::span<const std::byte>;

namespace {

constexpr std::uint32_t visible = 0x10000000;

void require(bool isTrue) {
    if (!isTrue) {
        std::abort();
    }
}

void requireSame(const DialogTemplate::Item& before, const DialogTemplate::Item& after,
                 bool hides) {
    require(after.style == (hides ? before.style & ~visible : before.style));
    require(before.extendedStyle == after.extendedStyle && before.id == after.id);
    require(before.windowClass == after.windowClass && before.title == after.title);
    require(before.size == after.size);
}

/// Requires that the items of `after` from an index on are those of `before`.
void requireItems(const DialogTemplate& before, const DialogTemplate& after, std::size_t from,
                  bool hides) {
    require(after.items.size() >= from + before.items.size());
    for (std::size_t i = 0; i < before.items.size(); ++i) {
        requireSame(before.items[i], after.items[from + i], hides);
    }
}

DialogTemplate readBack(const DialogResource& resource) {
    auto parsed = DialogTemplate::read(resource.getTemplate());
    require(parsed.has_value());
    return *parsed;
}

/// Loads a template; nothing for bytes that are none, which must be refused.
std::optional<DialogTemplate> load(DialogResource& resource, Bytes bytes) {
    auto parsed = DialogTemplate::read(bytes);
    try {
        resource.load(bytes);
        require(parsed.has_value());
    } catch (const zent::ResourceAcquisitionException&) {
        require(!parsed && resource.getSize() == 0);
        return std::nullopt;
    }
    const DialogTemplate loaded = readBack(resource);
    require(loaded.title == parsed->title && loaded.items.size() == parsed->items.size());
    requireItems(*parsed, loaded, 0, resource.hidesItems());
    return parsed;
}

void merge(DialogResource& left, const DialogTemplate& first, DialogResource& right,
           const DialogTemplate& second) {
    const std::size_t count = first.items.size() + second.items.size();
    try {
        left + right;
    } catch (const zent::ExceededNumberOfDlgItems&) {
        require(count > DialogResource::maximumItems);
        require(readBack(left).items.size() == first.items.size());
        return;
    }
    const DialogTemplate merged = readBack(left);
    require(merged.items.size() == count && merged.title == first.title);
    requireItems(first, merged, 0, true);
    requireItems(second, merged, first.items.size(), false);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const Bytes all = std::as_bytes(std::span(data, size)).subspan(2);
    const std::size_t length = std::min(data[0] | std::size_t{data[1]} << 8U, all.size());
    DialogResource left(1, true);
    DialogResource right(2, false);
    const auto first = load(left, all.first(length));
    const auto second = load(right, all.subspan(length));
    if (first && second) {
        merge(left, *first, right, *second);
    }
    return 0;
}

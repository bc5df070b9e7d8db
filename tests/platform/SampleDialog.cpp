#include "platform/SampleDialog.h"

#include "platform/PeImage.h"
#include "platform/ResourceType.h"
#include "support/TemplateBuilder.h"

namespace zent::test {

namespace {

constexpr std::size_t headerSize = 40; // of a bitmap
constexpr std::uint8_t side = 8;

void paint(std::vector<std::uint8_t>& image, std::size_t pixel, std::uint32_t colour) {
    for (std::size_t byte = 0; byte < 3; ++byte) {
        image[headerSize + pixel * 3 + byte] = static_cast<std::uint8_t>(colour >> (8 * byte));
    }
}

/// A square bitmap of one colour, without a file's header.
std::vector<std::uint8_t> makeImage(std::uint8_t size, std::uint32_t colour) {
    std::vector<std::uint8_t> image(headerSize + std::size_t{size} * size * 3);
    put32(image, 0, headerSize);
    put32(image, 4, size);
    put32(image, 8, size);
    put16(image, 12, 1);
    put16(image, 14, 24);
    for (std::size_t pixel = 0; pixel < std::size_t{size} * size; ++pixel) {
        paint(image, pixel, colour);
    }
    return image;
}

} // namespace

std::vector<std::byte> sampleTemplate() {
    using namespace sample;
    using T = TemplateBuilder;
    constexpr std::uint32_t shown = T::visible;
    constexpr std::uint32_t stop = shown | T::tabStop;
    constexpr std::uint32_t group = T::group;
    constexpr std::uint32_t bordered = stop | 0x00800000;
    return T(u"Sample", {0, 0, 300, 200})
        .add(frame, T::button, shown | group | 7, {2, 2, 100, 60}, u"Frame")
        .add(label, T::label, shown | 0x80, {5, 12, 40, 8}, u"A & B")
        .add(number, T::edit, bordered | 0x80, {50, 10, 40, 12})
        .add(notes, T::edit, bordered | 4 | 0x1000, {5, 26, 85, 30}, u"one")
        .add(duplex, T::button, stop | group | 3, {5, 66, 60, 10}, u"&Duplex")
        .add(firstRadio, T::button, stop | group | 9, {5, 78, 60, 10}, u"&First")
        .add(secondRadio, T::button, shown | 9, {5, 90, 60, 10}, u"&Second")
        .add(otherRadio, T::button, stop | group | 9, {5, 102, 60, 10}, u"&Other")
        .add(choice, T::comboBox, stop | group | 3, {110, 10, 80, 60})
        .add(ownChoice, T::comboBox, stop | 2 | 0x40, {110, 26, 80, 60})
        .add(openChoice, T::comboBox, stop | 1 | 0x40, {200, 10, 80, 50})
        .add(list, T::listBox, bordered | 1 | 2, {110, 66, 80, 40})
        .add(table, u"SysListView32", bordered | 1 | 4, {5, 116, 140, 50})
        .add(slider, u"msctls_trackbar32", stop, {200, 66, 80, 16})
        .add(spin, u"msctls_updown32", shown, {200, 90, 12, 14})
        .add(picture, T::label, shown | 14, {200, 110, 20, 20})
        .add(drawn, T::button, stop | 11, {230, 110, 20, 20})
        .add(scrolled, T::scrollBar, shown, {200, 140, 80, 10})
        .add(ok, T::button, stop | group | 1, {180, 180, 50, 14}, u"OK")
        .add(cancel, T::button, stop, {240, 180, 50, 14}, u"Cancel")
        .build();
}

SampleResources::SampleResources() {
    using namespace platform;
    Image bitmap = makeImage(side, 0x0000FF);
    for (std::uint32_t pixel = 0; pixel < side * side; ++pixel) {
        if (pixel % side / 2 % 3 != 0 && pixel / side / 2 % 3 != 0) {
            paint(bitmap, pixel, 0xFF0000);
        }
    }
    addIcon(redPicture, {{side, 0}});
    Image icon = bitmap;
    icon.resize(bitmap.size() + std::size_t{side} * 4); // a mask that lets all through
    put32(icon, 8, side * 2);
    images[{redPicture * 10, resourceType::icon}] = icon;
    images[{redPicture, resourceType::bitmap}] = bitmap;
    addIcon(twoSizes, {{16, smallColour}, {32, largeColour}});
}

void SampleResources::addIcon(std::uint32_t group,
                              std::initializer_list<std::pair<std::uint8_t, std::uint32_t>> sizes) {
    Image directory(6);
    put16(directory, 2, 1);
    put16(directory, 4, static_cast<std::uint16_t>(sizes.size()));
    std::uint32_t id = group * 10;
    for (const auto& [size, colour] : sizes) {
        Image image = makeImage(size, colour);
        image.resize(image.size() + std::size_t{size} * 4);
        put32(image, 8, size * 2U);
        const std::size_t entry = directory.size();
        directory.resize(entry + 14);
        directory[entry] = directory[entry + 1] = size;
        put16(directory, entry + 4, 1);
        put16(directory, entry + 6, 24);
        put32(directory, entry + 8, static_cast<std::uint32_t>(image.size()));
        put16(directory, entry + 12, static_cast<std::uint16_t>(id));
        images[{id++, platform::resourceType::icon}] = std::move(image);
    }
    images[{group, platform::resourceType::iconGroup}] = std::move(directory);
}

std::span<const std::byte> SampleResources::findResource(std::uint32_t id, std::uint32_t type,
                                                         Failure& failure) const {
    const auto found = images.find({id, type});
    failure = found == images.end() ? Failure::find : Failure::none;
    return found == images.end() ? std::span<const std::byte>()
                                 : std::as_bytes(std::span(found->second));
}

bool Recorder::processEvent(platform::Dialog& opened, std::uint32_t message, std::uintptr_t wParam,
                            std::intptr_t lParam, std::intptr_t& result) {
    const auto item = static_cast<std::uint16_t>(wParam & 0xFFFF);
    const auto code = static_cast<std::uint32_t>(wParam >> 16);
    platform::WindowHandle const dialog = opened.getHandle();
    result = answer;
    if (message == platform::event::initDialog) {
        note("init", {});
        onInit(dialog);
    } else if (message == platform::event::destroy) {
        note("destroy", {});
        onDestroy(dialog);
    } else if (message == platform::event::command &&
               (code != platform::notification::editLeft || notesFocus)) {
        note("command", {item, code});
        const auto found = onCommand.find(item);
        if (found != onCommand.end()) {
            found->second(dialog);
        }
    } else if (message == platform::event::notify) {
        const auto& told = *reinterpret_cast<const platform::Notification*>(lParam);
        const bool isSpin = told.code == platform::notification::spinStep;
        const bool isChanging = told.code == platform::notification::listViewChanging;
        note("notify", {told.item, told.code, isSpin ? told.position : told.row,
                        isChanging ? std::int64_t{told.newState} : told.delta});
    } else if (message == platform::event::horizontalScroll) {
        note("scroll", {lParam, code});
    } else if (message == platform::event::drawItem) {
        onDraw(dialog, *reinterpret_cast<const platform::DrawRequest*>(lParam));
    } else if (message == platform::event::mouseMoved || message == platform::event::mousePressed) {
        note("mouse", {message, item, lParam & 0xFFFF, lParam >> 16});
    } else if (message != platform::event::command) {
        note("message", {message});
    }
    return true;
}

void Recorder::note(const char* word, std::initializer_list<std::int64_t> numbers) {
    log += log.empty() ? "" : "; ";
    log += word;
    for (const std::int64_t each : numbers) {
        log += ' ' + std::to_string(each);
    }
}

} // namespace zent::test

#include "platform/SampleDialog.h"

#include "platform/PeImage.h"
#include "platform/ResourceType.h"
#include "support/TemplateBuilder.h"

namespace zent::test {

namespace {

constexpr std::size_t headerSize = 40; // of a bitmap
constexpr std::size_t side = 8;

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

SampleResources::SampleResources() : m_bitmap(headerSize + side * side * 3), m_iconGroup(20) {
    put32(m_bitmap, 0, headerSize);
    put32(m_bitmap, 4, side);
    put32(m_bitmap, 8, side);
    put16(m_bitmap, 12, 1);
    put16(m_bitmap, 14, 24);
    for (std::uint32_t pixel = 0; pixel < side * side; ++pixel) {
        const bool isRed = pixel % side / 2 % 3 != 0 && pixel / side / 2 % 3 != 0;
        m_bitmap[headerSize + pixel * 3 + (isRed ? 2 : 0)] = 255;
    }
    m_icon = m_bitmap;
    m_icon.resize(m_bitmap.size() + side * 4); // a mask that lets all through
    put32(m_icon, 8, side * 2);
    put16(m_iconGroup, 2, 1);
    put16(m_iconGroup, 4, 1);
    m_iconGroup[6] = m_iconGroup[7] = side;
    put16(m_iconGroup, 10, 1);
    put16(m_iconGroup, 12, 24);
    put32(m_iconGroup, 14, static_cast<std::uint32_t>(m_icon.size()));
    put16(m_iconGroup, 18, redPicture);
}

std::span<const std::byte> SampleResources::findResource(std::uint32_t id, std::uint32_t type,
                                                         Failure& failure) const {
    static const std::vector<std::uint8_t> none;
    const auto& found = id != redPicture                            ? none
                        : type == platform::resourceType::bitmap    ? m_bitmap
                        : type == platform::resourceType::icon      ? m_icon
                        : type == platform::resourceType::iconGroup ? m_iconGroup
                                                                    : none;
    failure = found.empty() ? Failure::find : Failure::none;
    return std::as_bytes(std::span(found));
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
        note("notify", {told.item, told.code, isSpin ? told.position : told.row, told.delta});
    } else if (message == platform::event::horizontalScroll) {
        note("scroll", {lParam, code});
    } else if (message == platform::event::drawItem) {
        onDraw(dialog, *reinterpret_cast<const platform::DrawRequest*>(lParam));
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

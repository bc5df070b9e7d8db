#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/Dialog.h"
#include "platform/ResourceModule.h"

namespace zent::test {

// A dialog with an item of each kind, and what goes with it, for tests of the window system.

namespace sample {
// clang-format off
enum Item : std::uint16_t {
    ok = 1, cancel = 2, number = 10, notes, duplex, firstRadio, secondRadio,
    otherRadio, // of another group
    choice,
    ownChoice, // with a text to edit
    openChoice, list, table, slider, spin, picture, drawn, frame, label, scrolled, absent = 999
};
// clang-format on
} // namespace sample

std::vector<std::byte> sampleTemplate();

constexpr std::uint32_t redPicture = 500;
constexpr std::uint32_t twoSizes = 501;
constexpr std::uint32_t smallColour = 0x00C000;
constexpr std::uint32_t largeColour = 0xC000C0;

/// A bitmap and an icon of redPicture, of 8 by 8 pixels: a red square of 4 by 4 in the middle, else
/// a ground of blue. An icon of twoSizes, whose images have a colour each.
class SampleResources final : public platform::ResourceModule {
public:
    SampleResources();
    std::int32_t loadString(std::uint32_t, char16_t*, std::int32_t) const override { return 0; }
    std::span<const std::byte> findResource(std::uint32_t id, std::uint32_t type,
                                            Failure& failure) const override;
    const void* loadIcon(std::uint32_t) const override { return nullptr; }

    using Image = std::vector<std::uint8_t>;
    std::map<std::pair<std::uint32_t, std::uint32_t>, Image> images; // by number and type

private:
    /// Of images of the sizes given, each with its colour; their resources are numbered on from the
    /// group.
    void addIcon(std::uint32_t group,
                 std::initializer_list<std::pair<std::uint8_t, std::uint32_t>> sizes);
};

/// Writes down what it is told, and does what the test wants at some of it. Which edit item lost
/// the focus it says only if asked to.
class Recorder final : public platform::DialogProcedure {
public:
    std::function<void(platform::WindowHandle)> onInit = [](platform::WindowHandle) {};
    std::function<void(platform::WindowHandle)> onDestroy = onInit;
    /// By item: what a command of it does.
    std::map<std::uint16_t, std::function<void(platform::WindowHandle)>> onCommand;
    std::function<void(platform::WindowHandle, const platform::DrawRequest&)> onDraw =
        [](auto, const auto&) {};
    std::intptr_t answer = 0;
    bool notesFocus = false;
    std::string log;

    bool processEvent(platform::Dialog& opened, std::uint32_t message, std::uintptr_t wParam,
                      std::intptr_t lParam, std::intptr_t& result) override;

private:
    void note(const char* word, std::initializer_list<std::int64_t> numbers);
};

} // namespace zent::test

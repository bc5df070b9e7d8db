#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

#include "platform/WindowHandle.h"

/// Acts on dialogs as a person does, through the toolkit's own input: each adapter of the window
/// system has its own. An item that is hidden or disabled ignores it.
namespace zent::test::user {

enum class Key { tab, shiftTab, enter, escape, backspace, remove, up, down, space };

/// Runs an action once the dialog that is opened next is on the screen and idle; a modal dialog
/// blocks the caller, so this comes before. Several are run in the order given, each when its
/// dialog is the active one.
void onceOpen(std::function<void(platform::WindowHandle dialog)> action);

/// The item with the keyboard's focus, 0 for none.
std::uint16_t focused(platform::WindowHandle dialog);
void press(platform::WindowHandle dialog, Key key);
/// Types into an item, which gets the focus; at the cursor, the end to begin with.
void type(platform::WindowHandle dialog, std::uint16_t item, std::u16string_view text);
void paste(platform::WindowHandle dialog, std::uint16_t item, std::u16string_view text);
void click(platform::WindowHandle dialog, std::uint16_t item);
/// The mouse goes to a place in an item, in pixels, and its left button down there.
void moveMouse(platform::WindowHandle dialog, std::uint16_t item, int x, int y);
void pressMouse(platform::WindowHandle dialog, std::uint16_t item, int x, int y);
/// Chooses from a combo box or list box.
void choose(platform::WindowHandle dialog, std::uint16_t item, std::int32_t index);
/// Whether the whole row of a list view can be seen without scrolling.
bool seesRow(platform::WindowHandle dialog, std::uint16_t item, std::int32_t row);
void clickRow(platform::WindowHandle dialog, std::uint16_t item, std::int32_t row);
void checkRow(platform::WindowHandle dialog, std::uint16_t item, std::int32_t row);
void moveSlider(platform::WindowHandle dialog, std::uint16_t item, std::int32_t position);
/// One step of a spin's upper or lower arrow.
void spin(platform::WindowHandle dialog, std::uint16_t item, bool up);
/// Closes the dialog by the window system's own means, such as the cross in the frame.
void close(platform::WindowHandle dialog);

/// Writes what the user sees of a dialog to a PNG or BMP file; false on failure.
bool saveScreenshot(platform::WindowHandle dialog, const std::filesystem::path& file);

} // namespace zent::test::user

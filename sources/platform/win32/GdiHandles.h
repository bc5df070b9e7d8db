#pragma once

#include <memory>
#include <type_traits>

#include <windows.h>

namespace zent::platform::win32 {

struct DeleteGdiObject {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
using OwnBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;

struct DestroyIconHandle {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
using OwnIcon = std::unique_ptr<std::remove_pointer_t<HICON>, DestroyIconHandle>;

/// The drawing surface of a window, or of the screen for null, while the object lives.
class WindowSurface {
public:
    explicit WindowSurface(HWND window) : m_window(window), m_context(GetDC(window)) {}
    ~WindowSurface() { ReleaseDC(m_window, m_context); }
    WindowSurface(const WindowSurface&) = delete;
    WindowSurface& operator=(const WindowSurface&) = delete;

    HDC get() const { return m_context; }

private:
    HWND m_window;
    HDC m_context;
};

/// A surface in memory that draws on a bitmap, or from one, while the object lives.
class MemorySurface {
public:
    MemorySurface(HDC alike, HBITMAP bitmap)
        : m_context(CreateCompatibleDC(alike)), m_previous(SelectObject(m_context, bitmap)) {}
    ~MemorySurface() {
        SelectObject(m_context, m_previous);
        DeleteDC(m_context);
    }
    MemorySurface(const MemorySurface&) = delete;
    MemorySurface& operator=(const MemorySurface&) = delete;

    HDC get() const { return m_context; }

private:
    HDC m_context;
    HGDIOBJ m_previous;
};

} // namespace zent::platform::win32

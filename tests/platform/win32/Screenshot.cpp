#include <fstream>
#include <vector>

#include "platform/win32/GdiHandles.h"
#include "support/DialogUser.h"

namespace zent::test::user {

namespace {

using platform::win32::MemorySurface;
using platform::win32::OwnBitmap;

/// The surface of a window with its frame, while the object lives.
class FrameSurface {
public:
    explicit FrameSurface(HWND window) : m_window(window), m_context(GetWindowDC(window)) {}
    ~FrameSurface() { ReleaseDC(m_window, m_context); }
    FrameSurface(const FrameSurface&) = delete;
    FrameSurface& operator=(const FrameSurface&) = delete;

    HDC get() const { return m_context; }

private:
    HWND m_window;
    HDC m_context;
};

OwnBitmap copyWindow(HDC window, SIZE size) {
    OwnBitmap copy(CreateCompatibleBitmap(window, size.cx, size.cy));
    const MemorySurface target(window, copy.get());
    BitBlt(target.get(), 0, 0, size.cx, size.cy, window, 0, 0, SRCCOPY);
    return copy;
}

BITMAPINFOHEADER headerOf(SIZE size) {
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof(header);
    header.biWidth = size.cx;
    header.biHeight = size.cy;
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biCompression = BI_RGB;
    header.biSizeImage = static_cast<DWORD>((size.cx * 3 + 3) / 4 * 4 * size.cy);
    return header;
}

BITMAPFILEHEADER fileHeaderOf(const BITMAPINFOHEADER& header) {
    constexpr WORD mark = 0x4D42; // "BM"
    BITMAPFILEHEADER file = {};
    file.bfType = mark;
    file.bfOffBits = sizeof(file) + header.biSize;
    file.bfSize = file.bfOffBits + header.biSizeImage;
    return file;
}

template <typename Part>
void write(std::ofstream& file, const Part& part) {
    file.write(reinterpret_cast<const char*>(&part), sizeof(part));
}

} // namespace

bool saveScreenshot(platform::WindowHandle dialog, const std::filesystem::path& file) {
    const HWND window = static_cast<HWND>(dialog);
    RECT place = {};
    if (GetWindowRect(window, &place) == FALSE) {
        return false;
    }
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const FrameSurface surface(window);
    const SIZE size = {place.right - place.left, place.bottom - place.top};
    const OwnBitmap copy = copyWindow(surface.get(), size);
    BITMAPINFO info = {};
    info.bmiHeader = headerOf(size);
    const BITMAPFILEHEADER fileHeader = fileHeaderOf(info.bmiHeader);
    std::vector<std::byte> pixels(info.bmiHeader.biSizeImage);
    if (GetDIBits(surface.get(), copy.get(), 0, static_cast<UINT>(size.cy), pixels.data(), &info,
                  DIB_RGB_COLORS) == 0) {
        return false;
    }
    std::ofstream output(file, std::ios::binary);
    write(output, fileHeader);
    write(output, info.bmiHeader);
    output.write(reinterpret_cast<const char*>(pixels.data()),
                 static_cast<std::streamsize>(pixels.size()));
    return output.good();
}

} // namespace zent::test::user

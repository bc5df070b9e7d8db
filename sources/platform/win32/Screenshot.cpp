#include "platform/win32/Screenshot.h"

#include <vector>

#include "platform/Files.h"
#include "platform/win32/GdiHandles.h"

namespace zent::platform::win32 {

namespace {

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

bool write(OpenFile& file, const void* data, std::size_t length) {
    std::size_t done = 0;
    return file.write(data, length, done) && done == length;
}

} // namespace

bool saveAsBitmap(HWND window, const CXString& fileName) {
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
    const auto file = OpenFile::createForWriting(fileName);
    return file != nullptr && write(*file, &fileHeader, sizeof(fileHeader)) &&
           write(*file, &info.bmiHeader, sizeof(info.bmiHeader)) &&
           write(*file, pixels.data(), pixels.size());
}

} // namespace zent::platform::win32

#include <fstream>
#include <vector>

#include "platform/win32/GdiHandles.h"
#include "support/DialogUser.h"

namespace zent::test::user {

bool saveScreenshot(platform::WindowHandle dialog, const std::filesystem::path& file) {
    const HWND window = static_cast<HWND>(dialog);
    RECT place = {};
    if (GetWindowRect(window, &place) == FALSE) {
        return false;
    }
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    BITMAPINFO info = {};
    BITMAPINFOHEADER& header = info.bmiHeader;
    header.biSize = sizeof(header);
    header.biWidth = place.right - place.left;
    header.biHeight = place.bottom - place.top;
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biSizeImage = static_cast<DWORD>((header.biWidth * 3 + 3) / 4 * 4 * header.biHeight);
    const HDC surface = GetWindowDC(window); // with its frame
    void* pixels = nullptr;
    const platform::win32::OwnBitmap copy(
        CreateDIBSection(surface, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    {
        const platform::win32::MemorySurface target(surface, copy.get());
        BitBlt(target.get(), 0, 0, header.biWidth, header.biHeight, surface, 0, 0, SRCCOPY);
        GdiFlush();
    }
    ReleaseDC(window, surface);
    BITMAPFILEHEADER start = {};
    start.bfType = 0x4D42; // "BM"
    start.bfOffBits = sizeof(start) + header.biSize;
    start.bfSize = start.bfOffBits + header.biSizeImage;
    std::ofstream output(file, std::ios::binary);
    output.write(reinterpret_cast<const char*>(&start), sizeof(start));
    output.write(reinterpret_cast<const char*>(&header), sizeof(header));
    output.write(static_cast<const char*>(pixels), static_cast<int>(header.biSizeImage));
    return pixels != nullptr && output.good();
}

} // namespace zent::test::user

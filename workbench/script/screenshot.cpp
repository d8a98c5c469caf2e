#include "workbench/script/screenshot.h"

#include <windows.h>

#include <cstdio>
#include <vector>

namespace workbench {
namespace {

struct Picture {
  BITMAPINFOHEADER header{};
  std::vector<BYTE> pixels;
};

bool copyScreen(Picture* picture) {
  int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
  BITMAPINFOHEADER& header = picture->header;
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = height;
  header.biPlanes = 1;
  header.biBitCount = 24;
  header.biSizeImage = static_cast<DWORD>(width * 3 + 3) / 4 * 4 * static_cast<DWORD>(height);
  picture->pixels.resize(header.biSizeImage);

  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  HGDIOBJ before = SelectObject(memory, bitmap);
  bool copied = BitBlt(memory, 0, 0, width, height, screen, 0, 0, SRCCOPY) != 0;
  SelectObject(memory, before);
  BITMAPINFO info{};
  info.bmiHeader = header;
  copied = copied && GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), picture->pixels.data(),
                               &info, DIB_RGB_COLORS) == height;
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return copied;
}

}  // namespace

bool saveScreenshot(const std::string& path) {
  Picture picture;
  if (!copyScreen(&picture)) {
    return false;
  }
  BITMAPFILEHEADER head{};
  head.bfType = 0x4D42;  // "BM"
  head.bfOffBits = sizeof head + sizeof picture.header;
  head.bfSize = head.bfOffBits + picture.header.biSizeImage;
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) {
    return false;
  }
  bool written = std::fwrite(&head, sizeof head, 1, file) == 1 &&
                 std::fwrite(&picture.header, sizeof picture.header, 1, file) == 1 &&
                 std::fwrite(picture.pixels.data(), picture.pixels.size(), 1, file) == 1;
  return std::fclose(file) == 0 && written;
}

}  // namespace workbench

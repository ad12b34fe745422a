#include <cli/immagine.h>

#include <memory>

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace lirmeto::prova {

Immagine ImmagineDaPng(const std::string& png) {
  ULONG_PTR gettone = 0;
  const Gdiplus::GdiplusStartupInput richiesta;
  Gdiplus::GdiplusStartup(&gettone, &richiesta, nullptr);
  const HGLOBAL memoria = ::GlobalAlloc(GMEM_MOVEABLE, png.size());
  png.copy(static_cast<char*>(::GlobalLock(memoria)), png.size());
  ::GlobalUnlock(memoria);
  IStream* flusso = nullptr;
  ::CreateStreamOnHGlobal(memoria, TRUE, &flusso);
  Immagine immagine;
  {
    Gdiplus::Bitmap figura(flusso);
    immagine.larga = static_cast<int>(figura.GetWidth());
    for (int y = 0; y < static_cast<int>(figura.GetHeight()); ++y)
      for (int x = 0; x < immagine.larga; ++x) {
        Gdiplus::Color tinta;
        figura.GetPixel(x, y, &tinta);
        immagine.tinte.push_back(tinta.GetValue() & 0xFFFFFF);
      }
  }
  flusso->Release();
  Gdiplus::GdiplusShutdown(gettone);
  return immagine;
}

} // namespace lirmeto::prova

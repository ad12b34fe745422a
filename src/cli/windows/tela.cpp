#include <cli/tela.h>

#include <base/errore.h>
#include <piattaforma/windows/win32.h>

#include <cmath>
#include <numbers>

#include <objidl.h>

#include <gdiplus.h>

namespace lirmeto {

namespace {

constexpr CLSID CodificaPng = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

// The painting library, for as long as something of it lives.
class Libreria {
public:
  Libreria() {
    const Gdiplus::GdiplusStartupInput richiesta;
    Gdiplus::GdiplusStartup(&gettone_, &richiesta, nullptr);
  }
  Libreria(const Libreria&) = delete;
  Libreria& operator=(const Libreria&) = delete;
  ~Libreria() { Gdiplus::GdiplusShutdown(gettone_); }

private:
  ULONG_PTR gettone_ = 0;
};

Gdiplus::Color Colore(const TintaClassica& tinta) {
  return {static_cast<BYTE>(tinta.rosso), static_cast<BYTE>(tinta.verde), static_cast<BYTE>(tinta.blu)};
}

Gdiplus::REAL Reale(double valore) {
  return static_cast<Gdiplus::REAL>(valore);
}

// The library counts dashes in widths of the pen.
void Prepara(Gdiplus::Pen& disegno, const Penna& penna) {
  const auto estremo = penna.Continua() ? Gdiplus::LineCapSquare : Gdiplus::LineCapFlat;
  disegno.SetLineCap(estremo, estremo, Gdiplus::DashCapFlat);
  if (penna.Continua()) return;
  const Gdiplus::REAL tratti[] = {Reale(penna.tratti[0] / penna.larga), Reale(penna.tratti[1] / penna.larga)};
  disegno.SetDashPattern(tratti, 2);
}

// From where the first dash of a line begins, which lies further from the picture than the line was cut. Not every system
// minds the offset that the library could be told.
Segmento DalPrimoTratto(Segmento segmento, const Penna& penna) {
  const double lungo = std::hypot(segmento.x2 - segmento.x1, segmento.y2 - segmento.y1);
  if (penna.Continua() || lungo == 0) return segmento;
  const double indietro = std::fmod(penna.saltati, penna.tratti[0] + penna.tratti[1]) / lungo;
  segmento.x1 -= (segmento.x2 - segmento.x1) * indietro;
  segmento.y1 -= (segmento.y2 - segmento.y1) * indietro;
  return segmento;
}

// The family told, else the first that this system has.
std::unique_ptr<Gdiplus::FontFamily> Famiglia(const std::wstring& detta) {
  auto famiglia = std::make_unique<Gdiplus::FontFamily>(detta.c_str());
  if (famiglia->IsAvailable()) return famiglia;
  const Gdiplus::InstalledFontCollection tutte;
  INT quante = 0;
  tutte.GetFamilies(1, famiglia.get(), &quante);
  return famiglia;
}

std::string Contenuto(IStream* flusso) {
  HGLOBAL memoria = nullptr;
  STATSTG dati{};
  if (FAILED(::GetHGlobalFromStream(flusso, &memoria)) || FAILED(flusso->Stat(&dati, STATFLAG_NONAME)))
    throw Errore(errore::MemoriaEsaurita);
  const auto* byte = static_cast<const char*>(::GlobalLock(memoria));
  std::string contenuto(byte, static_cast<std::size_t>(dati.cbSize.QuadPart));
  ::GlobalUnlock(memoria);
  return contenuto;
}

} // namespace

struct Tela::Dentro {
  Dentro(int larga, int alta) : figura(larga, alta, PixelFormat24bppRGB), disegno(&figura) {}

  Libreria libreria; // first: the others live in it
  Gdiplus::Bitmap figura;
  Gdiplus::Graphics disegno;
};

Tela::Tela(int larga, int alta, const TintaClassica& fondo) : dentro_(std::make_unique<Dentro>(larga, alta)) {
  if (dentro_->figura.GetLastStatus() != Gdiplus::Ok) throw Errore(errore::MemoriaEsaurita);
  dentro_->disegno.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
  dentro_->disegno.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  dentro_->disegno.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
  dentro_->disegno.Clear(Colore(fondo));
}

Tela::~Tela() = default;

void Tela::Linea(const Segmento& segmento, const Penna& penna) {
  Gdiplus::Pen disegno(Colore(penna.tinta), Reale(penna.larga));
  Prepara(disegno, penna);
  const Segmento s = DalPrimoTratto(segmento, penna);
  dentro_->disegno.DrawLine(&disegno, Reale(s.x1), Reale(s.y1), Reale(s.x2), Reale(s.y2));
}

void Tela::Cerchio(double x, double y, double raggio, const Penna& penna) {
  Gdiplus::Pen disegno(Colore(penna.tinta), Reale(penna.larga));
  Prepara(disegno, penna);
  dentro_->disegno.DrawEllipse(&disegno, Reale(x - raggio), Reale(y - raggio), Reale(2 * raggio), Reale(2 * raggio));
}

void Tela::Testo(const std::string& utf8, const PostoTesto& posto, const CarattereTela& carattere) {
  constexpr double gradiPerMezzoGiro = 180;
  const std::wstring testo = Largo(utf8);
  const auto famiglia = Famiglia(Largo(carattere.famiglia));
  const Gdiplus::Font font(famiglia.get(), Reale(carattere.pixel), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
  const Gdiplus::SolidBrush pennello(Colore(carattere.tinta));
  dentro_->disegno.TranslateTransform(Reale(posto.x), Reale(posto.y));
  dentro_->disegno.RotateTransform(Reale(posto.giro * gradiPerMezzoGiro / std::numbers::pi));
  dentro_->disegno.DrawString(testo.c_str(), static_cast<INT>(testo.size()), &font, Gdiplus::PointF(0, 0),
                              Gdiplus::StringFormat::GenericTypographic(), &pennello);
  dentro_->disegno.ResetTransform();
}

std::string Tela::Png() {
  IStream* flusso = nullptr;
  if (FAILED(::CreateStreamOnHGlobal(nullptr, TRUE, &flusso))) throw Errore(errore::MemoriaEsaurita);
  const auto rilascia = [](IStream* aperto) { aperto->Release(); };
  const std::unique_ptr<IStream, decltype(rilascia)> chiude(flusso, rilascia);
  if (dentro_->figura.Save(flusso, &CodificaPng, nullptr) != Gdiplus::Ok) throw Errore(errore::MemoriaEsaurita);
  return Contenuto(flusso);
}

} // namespace lirmeto

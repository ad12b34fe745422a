#include <verifiche/atto.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga_censuaria.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

namespace lirmeto {

namespace {

constexpr std::array<std::size_t, 13> Barre = {2, 4, 10, 14, 17, 23, 33, 36, 39, 45, 49, 52, 70}; // columns, from 1

struct SezioneCensuaria {
  std::size_t riga = 0; // of its count row
  std::string nome;
  std::size_t dichiarate = 0;
  std::vector<std::size_t> righe; // of its data
};

class Censuario {
public:
  Censuario(const Atto& atto, Raccolta& raccolta) : atto_(atto), raccolta_(raccolta) {
    if (atto.intorno.qualita == nullptr) return;
    for (const std::string& voce : *atto.intorno.qualita) qualita_.insert(std::string_view(voce).substr(0, 3));
  }

  void Verifica() {
    for (std::size_t i = 0; i < atto_.righe.Quante(); ++i)
      if (atto_.righe[i].forma == FormaRiga::Censuario && atto_.righe[i].sezione == SezioneAtto::Misure) Riga(i);
    for (const SezioneCensuaria& sezione : sezioni_) VerificaSezione(sezione);
  }

private:
  [[nodiscard]] std::string_view Campo(std::size_t riga, const CampoCensuario& campo) const {
    return Taglia(LeggiCampo(atto_.righe.Testo(riga), campo));
  }

  void Riga(std::size_t i) {
    const std::string_view riga = atto_.righe.Testo(i);
    if (riga.size() != LunghezzaCensuaria)
      return raccolta_.Riga(RegolaDi("M001"), i, 0, {TestoIntero(static_cast<long long>(riga.size()))});
    if (riga == censuario::Intestazione) return;
    if (ApreSezione(riga)) {
      const double conta = std::max(0.0, Misura(Campo(i, censuario::Conteggio)));
      sezioni_.push_back({i, std::string(Campo(i, censuario::Sezione)), static_cast<std::size_t>(conta), {}});
      return;
    }
    Dati(i);
  }

  void Dati(std::size_t i) {
    const std::string_view riga = atto_.righe.Testo(i);
    const auto storta = std::find_if(Barre.begin(), Barre.end(), [&](std::size_t c) { return riga[c - 1] != '|'; });
    if (sezioni_.empty()) raccolta_.Riga(RegolaDi("M011"), i, 0);
    if (!sezioni_.empty()) sezioni_.back().righe.push_back(i);
    if (storta != Barre.end())
      return raccolta_.Riga(RegolaDi("M002"), i, 0, {TestoIntero(static_cast<long long>(*storta))});
    VerificaQualita(i);
    if (Campo(i, censuario::Operazione) == "C") VerificaCostituita(i);
    if (Campo(i, censuario::Operazione) == "O") VerificaOriginaria(i);
  }

  void VerificaQualita(std::size_t i) {
    const std::string_view codice = Campo(i, censuario::Qualita);
    if (codice.empty() || codice == "000") return;
    if (!qualita_.empty() && !qualita_.contains(codice))
      raccolta_.Riga(RegolaDi("M007"), i, censuario::Qualita.indice, {codice});
    if (Valore(codice) >= censuario::PrimaNonAgraria && !Campo(i, censuario::Classe).empty())
      raccolta_.Riga(RegolaDi("M008"), i, censuario::Classe.indice, {codice});
  }

  void VerificaCostituita(std::size_t i) {
    const std::string_view nome = Campo(i, censuario::Temporaneo);
    if (!nome.empty() && !temporanei_.insert(nome).second)
      raccolta_.Riga(RegolaDi("M010"), i, censuario::Temporaneo.indice, {nome});
    const std::string_view lettera = Campo(i, censuario::Lettera);
    if (lettera.size() != 1) return;
    if (lettera.front() != attesa_) raccolta_.Riga(RegolaDi("M005"), i, censuario::Lettera.indice, {lettera});
    attesa_ = static_cast<char>(lettera.front() + 1);
  }

  void VerificaOriginaria(std::size_t i) {
    const auto& estratto = atto_.intorno.estratto;
    const std::string_view nome = Campo(i, censuario::Particella);
    if (estratto && estratto->intestato && !estratto->HaParticella(nome))
      raccolta_.Riga(RegolaDi("M009"), i, censuario::Particella.indice, {nome});
  }

  void VerificaSezione(const SezioneCensuaria& sezione) {
    if (sezione.dichiarate != sezione.righe.size() % 1000) { // the count has three digits
      std::string rimedio(atto_.righe.Testo(sezione.riga));
      SovrascriviCampo(rimedio, censuario::Conteggio, TreCifre(sezione.righe.size()));
      raccolta_.Riga(RegolaDi("M003"), sezione.riga, censuario::Conteggio.indice,
                     {sezione.nome, TestoIntero(static_cast<long long>(sezione.dichiarate)),
                      TestoIntero(static_cast<long long>(sezione.righe.size()))},
                     std::move(rimedio));
    }
    VerificaRisposte(sezione);
    VerificaAree(sezione);
  }

  void VerificaRisposte(const SezioneCensuaria& sezione) {
    std::unordered_set<std::string_view> risposte;
    for (const std::size_t i : sezione.righe)
      if (Campo(i, censuario::Operazione) == "S" || Campo(i, censuario::Operazione) == "V")
        risposte.insert(Campo(i, censuario::Particella));
    for (const std::size_t i : sezione.righe)
      if (Campo(i, censuario::Operazione) == "O" && !risposte.contains(Campo(i, censuario::Particella)))
        raccolta_.Riga(RegolaDi("M006"), i, censuario::Particella.indice, {Campo(i, censuario::Particella)});
  }

  void VerificaAree(const SezioneCensuaria& sezione) {
    double originarie = 0;
    double nuove = 0;
    for (const std::size_t i : sezione.righe) {
      const std::string_view operazione = Campo(i, censuario::Operazione);
      if (operazione == "O") originarie += Misura(Campo(i, censuario::Area));
      if (operazione == "C" || operazione == "V") nuove += Misura(Campo(i, censuario::Area));
    }
    if (nuove > 0 && nuove != originarie)
      raccolta_.Riga(RegolaDi("M004"), sezione.riga, 0,
                     {sezione.nome, Formatta(nuove, "0"), Formatta(originarie, "0")});
  }

  const Atto& atto_;
  Raccolta& raccolta_;
  std::unordered_set<std::string_view> qualita_; // codes
  std::unordered_set<std::string_view> temporanei_;
  std::vector<SezioneCensuaria> sezioni_;
  char attesa_ = 'a'; // the next letter: they go on from one section to the next
};

} // namespace

void VerificaCensuario(const Atto& atto, Raccolta& raccolta) {
  Censuario(atto, raccolta).Verifica();
}

} // namespace lirmeto

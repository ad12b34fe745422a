// The census forms, driven as a user would drive their windows. Nothing is written: the memo lives as long as the run.
#include <cli/comandi.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/lettura.h>
#include <core/salvataggio.h>
#include <proposte/archivio_particelle.h>
#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>
#include <proposte/kr_tm_fusione.h>
#include <proposte/memo.h>
#include <proposte/tipo_mappale.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

// Places of the arguments of a split or a separation.
namespace arg {
constexpr std::size_t Particella = 0;
constexpr std::size_t Aree = 1;
constexpr std::size_t Mantieni = 2;
constexpr std::size_t Memo = 3;
constexpr std::size_t Derivazioni = 4;
constexpr std::size_t Libretto = 5;
constexpr std::size_t Urbani = 6;
} // namespace arg

// A file that may be left out.
std::string TestoDi(Ambiente& ambiente, const std::string& percorso) {
  return percorso.empty() ? std::string{} : CaricaFileIntero(ambiente, percorso);
}

// The libretto that the rows go into, as the workbench is given it.
void ApriElencato(Ambiente& ambiente, const std::string& libretto) {
  ApriLibretto(ambiente, libretto);
  CaricaLibrettoInList1(ambiente);
  AggiornaLibrettoMisure(ambiente);
}

std::string Salvato(Ambiente& ambiente) {
  return TestoDaSalvare(std::move(ambiente.sessione.Libretto), ambiente.sessione);
}

ParticellaScelta Scegli(Ambiente& ambiente, const std::string& file, std::string_view modello) {
  return ScegliParticella(ambiente.sessione, LeggiFileParticella(ambiente, file), modello);
}

// --- split and separation

// "area[:F][:R][:N]": the area, and the keys typed behind it.
struct AreaScritta {
  std::string_view area;
  std::string tasti;
};

AreaScritta LeggiArea(std::string_view voce) {
  const auto parti = Dividi(voce, ":");
  AreaScritta scritta{parti.empty() ? std::string_view{} : parti.front(), {}};
  for (std::size_t i = 1; i < parti.size(); ++i) {
    const char tasto = parti[i].size() == 1 ? Maiuscolo(parti[i].front()) : ' ';
    if (tasto != 'F' && tasto != 'R' && tasto != 'N')
      throw Errore(errore::ArgomentoNonValido, "I tasti di un'area sono F, R, N: \"" + std::string(voce) + "\"");
    scritta.tasti += tasto;
  }
  return scritta;
}

std::vector<AreaScritta> LeggiAree(std::string_view lista) {
  std::vector<AreaScritta> aree;
  for (const auto voce : Dividi(lista, ",")) aree.push_back(LeggiArea(voce));
  if (aree.empty()) throw Errore(errore::ArgomentoNonValido, std::string("La lista delle aree è vuota"_w));
  return aree;
}

void ScriviAree(PropostaDerivate& form, const std::vector<AreaScritta>& aree) {
  form.CambiaText1(TestoIntero(static_cast<long long>(aree.size())));
  for (const AreaScritta& scritta : aree) {
    form.CambiaText2(scritta.area);
    for (const char tasto : scritta.tasti) form.CambiaText2(form.Text2 + tasto);
    form.Invio();
  }
}

// Lines of List4 by their numbers from 1.
void SelezionaUrbani(KR_Stralcio& form, std::string_view urbani) {
  for (const auto voce : Dividi(urbani, ",")) {
    const double numero = Valore(voce);
    if (!ENumero(voce) || numero < 1 || numero > static_cast<double>(form.List4.Quante()))
      throw Errore(errore::ArgomentoNonValido, "Nessuna derivazione col numero \"" + std::string(voce) + "\"");
    form.List4.Seleziona(static_cast<std::size_t>(numero) - 1, true);
  }
}

std::string TempProposta(Ambiente& ambiente) {
  return CaricaFileIntero(ambiente, ambiente.sessione.CartellaProgramma + "\\temp\\TempProposta");
}

// List1, or the libretto with the memo in it. An error that the form absorbed is told: the rows are those before it.
std::string Esito(Ambiente& ambiente, PropostaDerivate& form, const std::string& libretto) {
  if (!form.Assorbito().empty()) ambiente.dialoghi.Messaggio("Le righe non sono ricomposte: " + form.Assorbito());
  if (libretto.empty()) return RigheUnite(form.List1);
  form.AggiungiAlMemo();
  SalvaPropostaFile1(ambiente, form.List2);
  return Salvato(ambiente);
}

template <typename Form, typename Prima>
std::string Deriva(Ambiente& ambiente, const std::vector<std::string>& argomenti, Prima prima) {
  const auto aree = LeggiAree(argomenti[arg::Aree]);
  if (!argomenti[arg::Libretto].empty()) ApriElencato(ambiente, argomenti[arg::Libretto]);
  const bool mantieni = !argomenti[arg::Mantieni].empty();
  ambiente.sessione.ModoEditor = mantieni ? ModoMantiene : ModoSopprime;
  PropostaDerivate::Ingressi ingressi;
  ingressi.modello = TestoDi(ambiente, argomenti[arg::Derivazioni]);
  ingressi.memo = TestoDi(ambiente, argomenti[arg::Memo]);
  ingressi.proposta = TempProposta(ambiente);
  Form form(ambiente, Scegli(ambiente, argomenti[arg::Particella], ingressi.modello));
  form.Apri(ingressi);
  if (mantieni) form.Check1 = true;
  prima(form);
  ScriviAree(form, aree);
  return Esito(ambiente, form, argomenti[arg::Libretto]);
}

std::string ComandoFrazionamento(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return Deriva<KR_Fraziona>(ambiente, argomenti, [](KR_Fraziona&) {});
}

std::string ComandoStralcio(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return Deriva<KR_Stralcio>(ambiente, argomenti,
                             [&](KR_Stralcio& form) { SelezionaUrbani(form, argomenti[arg::Urbani]); });
}

// --- Tipo Mappale. Arguments: parcel, name, swap, libretto.

template <typename Form>
std::string ComponiTipoMappale(Ambiente& ambiente, const std::vector<std::string>& argomenti,
                               void (*scegli)(Form&, const std::string&)) {
  const std::string& libretto = argomenti[3];
  if (!libretto.empty()) ApriElencato(ambiente, libretto);
  Form form(ambiente, Scegli(ambiente, argomenti[0], {}));
  form.Form_Load();
  if (!argomenti[1].empty()) scegli(form, argomenti[1]);
  if (!argomenti[2].empty()) form.ScambiaSrSn();
  if (libretto.empty()) return RigheUnite(form.List1);
  form.AggiungiAlMemo();
  form.Salva();
  return Salvato(ambiente);
}

void ScegliNome(KR_NuovaCostruzione& form, const std::string& nome) {
  const auto posto = std::ranges::find(form.List3, Maiuscolo(nome));
  if (posto == form.List3.end())
    throw Errore(errore::ArgomentoNonValido, "Il nome temporaneo va da AAA a AAZ: \"" + nome + "\"");
  form.ScegliNome(static_cast<std::size_t>(posto - form.List3.begin()));
}

void SenzaNome(KR_TMVariazione& /*form*/, const std::string& nome) {
  throw Errore(errore::ArgomentoNonValido, "La particella variata tiene il suo numero: \"" + nome + "\"");
}

std::string ComandoNuovaCostruzione(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return ComponiTipoMappale<KR_NuovaCostruzione>(ambiente, argomenti, ScegliNome);
}

std::string ComandoVariazione(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return ComponiTipoMappale<KR_TMVariazione>(ambiente, argomenti, SenzaNome);
}

// Arguments: keep the number, section M31FU, memo, libretto, parcels.
std::string ComandoFusione(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  constexpr std::size_t primaParticella = 4;
  const std::string& libretto = argomenti[3];
  if (!libretto.empty()) ApriElencato(ambiente, libretto);
  KR_TMFusione form(ambiente);
  form.Apri(TestoDi(ambiente, argomenti[2]));
  form.Check1 = !argomenti[0].empty();
  form.Option1 = argomenti[1].empty() ? 0 : 1;
  form.List2.assign(argomenti.begin() + primaParticella, argomenti.end());
  form.AnteprimaTMFusione();
  if (libretto.empty()) return RigheUnite(form.List1);
  form.AggiungiAlMemo();
  form.SalvaConEsistenti();
  return Salvato(ambiente);
}

std::string ComandoArchivio(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ApriElencato(ambiente, argomenti[0]);
  std::string uscita;
  for (const auto& [nome, riga] : ParticelleDelLibretto(ambiente.sessione))
    uscita.append(nome).append(" ").append(riga).append(FineRiga);
  return uscita;
}

constexpr ArgomentoCli UnaParticella = {"PARTICELLA", GenereArgomento::File, "file .MAP della particella"};
constexpr ArgomentoCli InLibretto = {"--in", GenereArgomento::FileFacoltativo,
                                     "libretto che riceve le righe; senza: le righe soltanto"};
constexpr ArgomentoCli FileMemo = {"--memo", GenereArgomento::FileFacoltativo, "memo .CEN delle particelle di prima"};
constexpr ArgomentoCli AreeDerivate = {"--aree", GenereArgomento::Testo,
                                       "aree delle derivate: area[:F][:R][:N],... coi tasti battuti dopo ognuna"};
constexpr ArgomentoCli Mantieni = {"--mantieni", GenereArgomento::Bandiera, "la prima derivata mantiene il numero"};
constexpr ArgomentoCli Derivazioni = {"--derivazioni", GenereArgomento::FileFacoltativo,
                                      "\"Modello Censuario.TXT\" della proposta"};

constexpr ArgomentoCli ArgomentiFrazionamento[] = {UnaParticella, AreeDerivate, Mantieni,
                                                   FileMemo,      Derivazioni,  InLibretto};
constexpr ArgomentoCli ArgomentiStralcio[] = {
    UnaParticella,
    AreeDerivate,
    Mantieni,
    FileMemo,
    Derivazioni,
    InLibretto,
    {"--urbani", GenereArgomento::TestoFacoltativo, "derivazioni che diventano enti urbani: n,m (da 1)"}};
constexpr ArgomentoCli ArgomentiTipoMappale[] = {
    UnaParticella,
    {"--nome", GenereArgomento::TestoFacoltativo, "nome temporaneo della nuova particella, da AAA a AAZ"},
    {"--sr", GenereArgomento::Bandiera, "scambia SN e SR"},
    InLibretto};
constexpr ArgomentoCli ArgomentiFusione[] = {
    {"--conserva", GenereArgomento::Bandiera, "la particella fusa tiene il numero dell'ultima"},
    {"--m31fu", GenereArgomento::Bandiera, "sezione M31FU"},
    FileMemo,
    InLibretto,
    {"PARTICELLA", GenereArgomento::AltriFile, "file .MAP delle particelle, in ordine"}};

constexpr std::array<ComandoCli, 6> Comandi = {{
    {"frazionamento", "le righe censuarie di un frazionamento", ArgomentiFrazionamento, ComandoFrazionamento},
    {"stralcio", "le righe censuarie di uno stralcio", ArgomentiStralcio, ComandoStralcio},
    {"nuova-costruzione", "le righe censuarie di una nuova costruzione", ArgomentiTipoMappale, ComandoNuovaCostruzione},
    {"variazione", "le righe censuarie di una variazione", ArgomentiTipoMappale, ComandoVariazione},
    {"fusione", "le righe censuarie di una fusione", ArgomentiFusione, ComandoFusione},
    {"archivio", "i file delle particelle che un libretto costituisce", UnFile, ComandoArchivio},
}};

} // namespace

FamigliaCli ComandiCensuario() {
  return {"censuario", "righe del Modello Censuario", Comandi};
}

} // namespace lirmeto

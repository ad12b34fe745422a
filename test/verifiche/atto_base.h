#pragma once
// An act that no check has anything to say of: three stations closed by a traverse, a GNSS session, a base with offsets,
// contours, three fiducial points that the TAF and the archive of distances know, an extract, census rows, a proposal.
// The coordinates behind it are whole metres; readings are rounded as an instrument gives them.

#include <sostituti/banco.h>

#include <verifiche/verificatore.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto::prova {

inline const std::vector<std::string> AttoBase = {
    "0|21112026|1|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|", // 0
    "9|12|10|20|1150|10.00-G,APAG 2.12|FR|STAZIONE TOTALE|",
    "6|FRAZIONAMENTO|",
    "3|4|100|200|300|100|",
    "1|100|1.550|CHIODO|",
    "2|200|126.4863|100.4300|60.829|1.500|CHIODO|", // 5
    "2|300|66.5167|100.4300|67.084|1.500|PICCHETTO|",
    "2|PF01/0010/G224|299.5666|100.5400|144.227|1.500|SPIGOLO FABBRICATO|",
    "2|PF02/0010/G224|163.6250|100.5400|196.984|1.500|SPIGOLO FABBRICATO|",
    "2|101|66.5167|100.4300|22.361|1.500|TERMINE IN PIETRA|",
    "2|102|110.3750|100.4300|49.245|1.500|TERMINE IN PIETRA|", // 10
    "2|104|50.9209|100.4300|46.099|1.500|TERMINE IN PIETRA|",
    "2|111|99.5666|100.4300|36.056|1.500|PICCHETTO DIVIDENTE|",
    "1|200|1.550|CHIODO|",
    "2|100|100.9863|100.4300|60.829|1.500|CHIODO|",
    "2|300|177.0958|100.4300|58.311|1.500|PICCHETTO|", // 15
    "2|PF02/0010/G224|352.4666|100.5400|150.005|1.500|SPIGOLO FABBRICATO|",
    "2|102|148.9334|100.4300|18.028|1.500|TERMINE IN PIETRA|",
    "2|103|185.7238|100.4300|38.080|1.500|TERMINE IN PIETRA|",
    "2|111|131.9833|100.4300|31.623|1.500|PICCHETTO DIVIDENTE|",
    "1|300|1.550|PICCHETTO|", // 20
    "2|100|319.7667|100.4300|67.084|1.500|CHIODO|",
    "2|200|255.8458|100.4300|58.311|1.500|CHIODO|",
    "2|PF03/0010/G224|90.2500|100.5400|120.004|1.500|SPIGOLO FABBRICATO|",
    "2|PF01/0010/G224|342.4444|100.5400|205.190|1.500|SPIGOLO FABBRICATO|",
    "2|102|267.4099|100.4300|42.721|1.500|TERMINE IN PIETRA|", // 25
    "2|103|240.2500|100.4300|21.214|1.500|TERMINE IN PIETRA|",
    "2|104|349.2834|100.4300|25.001|1.500|TERMINE IN PIETRA|",
    "2|112|290.2500|100.4300|15.000|1.500|PICCHETTO DIVIDENTE|",
    "1|10000|4389679.000,925050.455,4518715.068|0.000|STAZIONE PERMANENTE|",
    "6|L2|21112026-08:52|21112026-11:07|NRTK|PDOP=2|", // 30
    "2|100|-170.775,188.844,126.388|0.00002,0.000002,0.000003,0.00001,0.000002,0.00002|PDOP=2|2.000|CHIODO [VRS]|",
    "2|200|-190.115,246.086,133.409|0.00002,0.000002,0.000003,0.00001,0.000002,0.00002|PDOP=2|2.000|CHIODO|",
    "2|300|-218.765,209.390,168.517|0.00002,0.000002,0.000003,0.00001,0.000002,0.00002|PDOP=2|2.000|PICCHETTO|",
    "2|105|-181.867,206.946,133.409|0.00002,0.000002,0.000003,0.00001,0.000002,0.00002|PDOP=2|2.000|TERMINE IN PIETRA|",
    "4|101|102|0.00|ALLINEAMENTO|", // 35
    "5|105|10.000|10.000|POZZETTO|",
    "5|102|35.000|0.000|TERMINE IN PIETRA|",
    "6|CONFINE|",
    "7|7|101|111|102|103|112|104|101|NC|",
    "6|NUOVA DIVIDENTE|", // 40
    "7|2|111|112|RC|",
    "6|***** Relazione  Tecnica *****|",
    "6|Rilievo eseguito con stazione totale.|",
    "6|*****   Fine   Relazione *****|",
    "8|PF01/0010/G224|1000.000|1000.000|05|SPIGOLO FABBRICATO|", // 45
    "8|PF02/0010/G224|1000.000|1300.000|05|SPIGOLO FABBRICATO|",
    "8|PF03/0010/G224|1260.000|1150.000|05|SPIGOLO FABBRICATO|",
    "8|103|1125.000|1165.000|TERMINE IN PIETRA|",
    "6|Dati per aggiornare il D.B. Censuario dell'Ufficio Tecnico Erariale|",
    "6|51FTP|004|                                                         |", // 50
    "6|O|12   |000|  |     |000000875|SN|  |     |001|1 |                 |",
    "6|S|12   |000|  |     |000000000|  |  |     |000|  |                 |",
    "6|C|     |000|a |AAA  |000000500|SN|  |     |001|1 |                 |",
    "6|C|     |000|b |AAB  |000000375|SN|  |     |001|1 |                 |",
    "6|ESTRATTO DI MAPPA|", // 55
    "8|1%|1100.000|1130.000|",
    "8|2%|1100.000|1165.000|",
    "8|3%|1125.000|1165.000|",
    "8|4%|1125.000|1130.000|",
    "7|5|1%|2%|3%|4%|1%|NC|12|12|875|", // 60
    "6|ESTRATTO DI MAPPA AGGIORNATO|",
    "8|5%|1100.000|1150.000|",
    "8|6%|1125.000|1150.000|",
    "7|5|1%|5%|6%|4%|1%|NC|AAA|AAA|500|",
    "7|5|5%|2%|3%|6%|5%|NC|AAB|AAB|375|", // 65
};

// A line of a TAF; the columns that are not told stay blank.
inline std::string RigaTaf(const std::string& numero, const std::string& nord, const std::string& est) {
  std::string riga(251, ' ');
  riga.replace(0, 4, "G224").replace(7, 3, "  1").replace(11, 1, "0").replace(16, 1, numero);
  riga.replace(101, nord.size(), nord).replace(114, est.size(), est).replace(127, 2, "05");
  return riga;
}

inline const std::string EstrattoBase = "0|01102026|PD1/2026|G224|00001|12,13|PD|PUB|X|1|\r\n"
                                        "8|1%|1090.000|1120.000|\r\n8|2%|1090.000|1175.000|\r\n"
                                        "8|3%|1135.000|1175.000|\r\n8|4%|1135.000|1120.000|\r\n"
                                        "7|5|1%|2%|3%|4%|1%|NC|12|12|2475|\r\n";

// The act with its surroundings, changed by `modifiche` before it is opened:
//
//   "9 vecchio>nuovo"   in row 9 the first text becomes the second
//   "9 -"               row 9 goes
//   "9 +riga"           a row before row 9
struct ConAtto : Banco {
  ConAtto() {
    disco.Metti("C:\\fiducial\\DATI\\G224.taf",
                Testo({RigaTaf("1", "1000.000", "1000.000"), RigaTaf("2", "1000.000", "1300.000"),
                       RigaTaf("3", "1260.000", "1150.000")}));
    disco.Metti("C:\\fiducial\\DATI\\PD2024.DDD",
                Testo({"PF01/0010/G224 - PF02/0010/G224       300.020    0.020     2010 1"}));
    disco.Metti("C:\\users\\prova\\Documents\\LIRMETO\\QUOTAMEDIA.TXT", "G224|PADOVA|12|\r\n");
    disco.Metti("C:\\pregeo\\estratti\\X.EMP", EstrattoBase);
    sessione.TabellaQualita = {"001   SEMINATIVO  ", "282   ENTE URBANO "};
  }

  void ApriCon(const std::vector<std::string>& modifiche) {
    std::vector<std::string> righe = AttoBase;
    for (const std::string& modifica : modifiche) Modifica(righe, modifica);
    Apri(Testo(righe));
    sessione.EstrattoAssociato = estratto;
    verificatore.Aggiorna();
  }

  static void Modifica(std::vector<std::string>& righe, const std::string& modifica) {
    const auto spazio = modifica.find(' ');
    const auto riga = static_cast<std::size_t>(std::stoul(modifica.substr(0, spazio)));
    const std::string resto = modifica.substr(spazio + 1);
    const auto posto = righe.begin() + static_cast<std::ptrdiff_t>(riga);
    if (resto == "-") return static_cast<void>(righe.erase(posto));
    if (resto.starts_with('+')) return static_cast<void>(righe.insert(posto, resto.substr(1)));
    const auto freccia = resto.find('>');
    const auto dove = righe[riga].find(resto.substr(0, freccia));
    ASSERT_NE(dove, std::string::npos) << modifica;
    righe[riga].replace(dove, freccia, resto.substr(freccia + 1));
  }

  // "L003 9.2" of field 2 of row 9, "L002 9" of the whole row, "F010" of the whole act.
  [[nodiscard]] static std::string Detta(const Segnalazione& s) {
    return std::string(s.regola->codice) + (s.riga ? " " + std::to_string(*s.riga) : "") +
           (s.campo > 0 ? "." + std::to_string(s.campo) : "");
  }

  // All findings of this code; "": of any.
  [[nodiscard]] std::vector<std::string> Trovate(std::string_view codice) const {
    std::vector<std::string> trovate;
    for (const Segnalazione& s : verificatore.Segnalazioni())
      if (codice.empty() || s.regola->codice == codice) trovate.push_back(Detta(s));
    return trovate;
  }

  std::string estratto = "X.EMP";
  Verificatore verificatore{ambiente};
};

} // namespace lirmeto::prova

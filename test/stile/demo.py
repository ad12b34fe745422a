#!/usr/bin/env python3
"""Checks that the demo installation is what it says it is: real layouts, exact bytes, rows that agree with one another."""

import math
import pathlib
import re
import subprocess
import sys
import unittest

RADICE = pathlib.Path(__file__).resolve().parent.parent.parent
DISCO = RADICE / "demo" / "dischi" / "c"
LIBRETTI = sorted(p for p in (DISCO / "libretti").iterdir() if p.suffix in (".DAT", ".LXB"))


def righe(file):
    return file.read_bytes().decode("cp1252").split("\r\n")[:-1]


class Tabelle(unittest.TestCase):
    def test_riprodotte(self):
        programma = RADICE / "strumenti" / "tabelle_demo.py"
        esito = subprocess.run([sys.executable, programma, "--verifica"], capture_output=True, text=True)
        self.assertEqual(esito.returncode, 0, esito.stdout)


class Libretti(unittest.TestCase):
    def test_fine_riga(self):
        for file in LIBRETTI:
            contenuto = file.read_bytes()
            self.assertTrue(contenuto.endswith(b"|\r\n"), file.name)
            self.assertEqual(contenuto.count(b"\r\n"), contenuto.count(b"\n"), file.name)
            self.assertTrue(all(r.endswith("|") and r[0].isdigit() for r in righe(file)), file.name)

    def test_vertici_dei_contorni(self):
        """The count of a row 7 covers its continuation rows."""
        for file in LIBRETTI:
            attesi, trovati = 0, 0
            for riga in righe(file) + ["7|0|"]:
                campi = riga.split("|")
                if campi[0] != "7" or campi[1] != "0" or riga == "7|0|":
                    self.assertEqual(trovati, attesi, f"{file.name} before {riga}")
                    attesi, trovati = 0, 0
                if campi[0] == "7":
                    attesi += int(campi[1])
                    fine = next((i for i, c in enumerate(campi) if re.fullmatch("[RN][CTP]|P[VD]", c)), 2)
                    trovati += fine - 2

    def test_conteggi_del_censuario(self):
        tutte = righe(DISCO / "libretti" / "COMPLETO.DAT")
        censuario = [r for r in tutte if r.startswith("6|") and len(r) == 70]
        self.assertEqual(int(censuario[1][8:11]), len(censuario) - 2)
        aree = [int(r.split("|")[6]) for r in censuario[2:]]
        self.assertEqual(aree[0], sum(aree[1:]))
        self.assertEqual(tutte.count("6|ESTRATTO DI MAPPA|"), 1)

    def test_distanze_reciproche(self):
        """Two stations that see each other measure the same distance on the ground, within a centimetre and a half."""
        coppie = 0
        for file in LIBRETTI:
            distanze, stazione = {}, ""
            for riga in righe(file):
                c = riga.split("|")
                if c[0] == "1":
                    stazione = c[1]
                elif c[0] == "2" and "," not in c[2] and len(c) == 8:
                    distanze[stazione, c[1]] = float(c[4]) * math.sin(float(c[3]) * math.pi / 200)
            for (a, b), d in distanze.items():
                if (b, a) in distanze:
                    self.assertAlmostEqual(d, distanze[b, a], delta=0.015, msg=f"{file.name} {a}-{b}")
                    coppie += 1
        self.assertGreater(coppie, 20)

    def test_base_gps_in_quinta_riga(self):
        tutte = righe(DISCO / "libretti" / "GPS.DAT")
        self.assertEqual([i for i, r in enumerate(tutte) if r.split("|")[6:7] and r.split("|")[6].endswith(" [VRS]")], [4])

    def test_codice_fiscale(self):
        dispari = dict(zip("ABCDEFGHIJKLMNOPQRSTUVWXYZ", (1, 0, 5, 7, 9, 13, 15, 17, 19, 21, 2, 4, 18, 20, 11, 3, 6, 8, 12,
                                                          14, 16, 10, 22, 25, 24, 23)))
        codice = next(r for r in righe(LIBRETTI[0]) if r.startswith("6|<COD>"))[7:-1]
        lettere = [chr(65 + int(c)) if c.isdigit() else c for c in codice]
        somma = sum(ord(c) - 65 if i % 2 else dispari[c] for i, c in enumerate(lettere[:15]))
        self.assertEqual(chr(65 + somma % 26), codice[15])


class Estratti(unittest.TestCase):
    def test_anelli_e_superfici(self):
        """Rings name points that are there, count and close; a parcel's surface is its ring's without its holes."""
        for file in sorted((DISCO / "pregeo" / "estratti").glob("*.EMP")):
            tutte = [r.split("|") for r in righe(file)]
            punti = {c[1]: (float(c[2]), float(c[3])) for c in tutte if c[0] == "8"}
            self.assertEqual(len(punti), sum(c[0] == "8" for c in tutte), file.name)
            anelli = []
            for c in tutte:
                if c[0] == "7":
                    fine = next(i for i, v in enumerate(c) if v in ("NC", "VT"))
                    if c[1] != "0":
                        anelli.append([int(c[1]), [], c[fine + 1:-1]])
                    anelli[-1][1].extend(c[2:fine])
            superfici, dette = {}, {}
            for attesi, nomi, coda in anelli:
                self.assertEqual(len(nomi), attesi, f"{file.name} {coda}")
                p = [punti[n] for n in nomi]
                if coda:
                    self.assertEqual(nomi[0], nomi[-1], f"{file.name} {coda}")
                    area = abs(sum(a[1] * b[0] - a[0] * b[1] for a, b in zip(p, p[1:]))) / 2
                    superfici.setdefault(coda[0], []).append(area)
                    dette.setdefault(coda[0], []).append(float(coda[2]))
            self.assertGreater(len(superfici), 0, file.name)
            for nome, aree in superfici.items():
                self.assertAlmostEqual(sum(dette[nome]), sum(aree) - sum(superfici.get(nome + "-", [])), delta=1e-3,
                                       msg=f"{file.name} {nome}")


class Fiduciali(unittest.TestCase):
    def test_le_misurate_concordano_con_la_taf(self):
        """Every measured distance is that of the two points' coordinates, within two centimetres; columns are fixed."""
        dati = DISCO / "fiducial" / "DATI"
        punti = {}
        for r in righe(dati / "G224.taf"):
            nome = f"PF{int(r[13:17]):02}/{int(r[5:10]):03}{r[10:12].strip()}/{r[0:5].strip()}"
            punti[nome] = float(r[101:113]), float(r[114:126])
        misurate = righe(dati / "PD2024.DDD")
        self.assertGreaterEqual(len(misurate), 30)
        for r in misurate:
            self.assertEqual((len(r), r[15:17]), (71, "- "), r)
            attesa = math.dist(punti[r[:15].strip()], punti[r[17:32].strip()])
            self.assertAlmostEqual(float(r[33:46]), attesa, delta=0.02, msg=r)


class Atto(unittest.TestCase):
    def test_sezioni_ed_estratto(self):
        pdf = (DISCO / "libretti" / "ATTO.PDF").read_bytes()
        self.assertEqual(re.findall(rb"\[TAG(\d+)\]\|", pdf), [b"1000", b"2000", b"3000", b"4000", b"5000"])
        self.assertEqual(len(re.findall(rb"\[/TAG", pdf)), 5)
        identificativo = re.search(rb"\[TAG3000\]\|([^<]*)", pdf)[1].split(b"|")[2]
        prime = [p.read_bytes().split(b"\r\n")[0].split(b"|") for p in (DISCO / "pregeo" / "estratti").glob("*.EMP")]
        self.assertEqual([r[2] for r in prime].count(identificativo), 1)

    def test_riferimenti_del_pdf(self):
        """Each entry of the cross-reference table points at its object."""
        pdf = (DISCO / "libretti" / "ATTO.PDF").read_bytes()
        inizio = int(re.search(rb"startxref\n(\d+)", pdf)[1])
        posti = re.findall(rb"(\d{10}) 00000 n", pdf[inizio:])
        self.assertGreater(len(posti), 3)
        for numero, posto in enumerate(posti, 1):
            self.assertTrue(pdf[int(posto):].startswith(b"%d 0 obj" % numero))


if __name__ == "__main__":
    unittest.main()

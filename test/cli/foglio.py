#!/usr/bin/env python3
"""The sheet and the neighbouring extracts of the demo installation through lirmeto-cli: the sheet's extract can be drawn and
saved, its surfaces are those of the .SUP, and the sum of the neighbours has their common border once.

foglio.py PROGRAM"""

import collections
import pathlib
import subprocess
import sys
import tempfile
import unittest

RADICE = pathlib.Path(__file__).resolve().parent.parent.parent
DEMO = RADICE / "demo" / "dischi"
ESTRATTI = DEMO / "c" / "pregeo" / "estratti"
PROGRAMMA = sys.argv.pop(1)


def lancia(*parole):
    esito = subprocess.run([PROGRAMMA, "--dischi", DEMO, *parole], capture_output=True, check=True)
    return esito.stdout.decode("cp1252").split("\r\n")[:-1]


def superfici(righe):
    """Surface by name of each head of a ring."""
    campi = [r.split("|") for r in righe if r.startswith("7|") and not r.startswith("7|0|")]
    return {c[-3]: int(float(c[-2])) for c in campi}


class Foglio(unittest.TestCase):
    def test_dal_cxf_all_estratto_salvato(self):
        sup = [(r[:11].strip(), int(r[11:])) for r in (ESTRATTI / "G224_004500.SUP").read_text().splitlines()]
        dette = {nome: area for nome, area in sup if nome.isdigit()}
        self.assertEqual(len(dette), 200)
        estratto = lancia("cxf", ESTRATTI / "G224_004500.CXF")
        self.assertEqual({n: a for n, a in superfici(estratto).items() if n.isdigit()}, dette)
        with tempfile.TemporaryDirectory() as cartella:
            file = pathlib.Path(cartella) / "foglio.emp"
            file.write_bytes("".join(r + "\r\n" for r in estratto).encode("cp1252"))
            salvate = superfici(lancia("estratto", "salva", file))
            disegno = lancia("disegno", "dxf", file)
        for nome, area in dette.items():
            self.assertAlmostEqual(salvate[nome], area, delta=1, msg=nome)
        nomi = collections.Counter(r.strip() for r in disegno)
        self.assertTrue(all(nomi[nome] >= 1 for nome in dette), "each parcel's name is in the drawing")

    def test_somma_dei_vicini(self):
        vicini = [ESTRATTI / f"G224_004500_{n}.EMP" for n in (101, 104)]
        posti = [{r.split("|", 2)[2] for r in lancia("estratto", "pulisci", v) if r.startswith("8|")
                  and r.split("|")[1].endswith("%")} for v in vicini]
        comuni = posti[0] & posti[1]
        self.assertGreaterEqual(len(comuni), 2)
        somma = lancia("estratto", "somma", *vicini)
        punti = [r.split("|", 2)[2] for r in somma if r.startswith("8|")]
        self.assertEqual((len(punti), set(punti)), (len(posti[0] | posti[1]), posti[0] | posti[1]))
        self.assertEqual(somma[1:], lancia("estratto", "somma", *vicini, vicini[0])[1:], "a sum with itself changes nothing")


if __name__ == "__main__":
    unittest.main()

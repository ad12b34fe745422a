#!/usr/bin/env python3
"""An outside reader of DXF finds every line and every label where the drawing has them."""

import csv
import subprocess
import sys
import tempfile
from pathlib import Path

try:
    import ezdxf
except ImportError:
    sys.exit(77)

LINEE = [("L", "%.10f" % (i * 1.37 - 900), "%d" % -i, "0", "%d" % (i * i), "1e%d" % (i % 12), "0", "%d" % (i % 13), "1", "%d" % (i % 3))
         for i in range(500)]
RIGHE = [("P", "A", "12.5", "-7", "0", "", "0"), ("P", " 35", "1", "2", "0", "", "12"), *LINEE]

with tempfile.TemporaryDirectory() as cartella:
    disegno, dxf = Path(cartella, "a.csv"), Path(cartella, "a.dxf")
    with disegno.open("w", newline="") as file:
        csv.writer(file).writerows(RIGHE)
    subprocess.run([sys.argv[1], "--dischi", cartella, "-o", dxf, "disegno", "dxf", disegno], check=True, stderr=subprocess.DEVNULL)
    modello = ezdxf.readfile(dxf).modelspace()

# The fiducial points of a comune, and the distances measured between them.
PUNTI = {"PF%02d/0010/G224" % i: (i * 37.5, -i * 11.25) for i in range(1, 41)}
NOMI = sorted(PUNTI)
with tempfile.TemporaryDirectory() as cartella:
    dati, dxf = Path(cartella, "c/fiducial/DATI"), Path(cartella, "pf.dxf")
    dati.mkdir(parents=True)
    taf = ["G224   001 0   %-86s %12.3f %12.3f\r\n" % (nome[2:4], nord, est) for nome, (est, nord) in PUNTI.items()]
    Path(dati, "G224.TAF").write_text("".join(taf), newline="")
    Path(dati, "ZZ.DDD").write_text("".join("%s - %s      1.000\r\n" % c for c in zip(NOMI, NOMI[1:])), newline="")
    Path(cartella, "c/pregeo/arch").mkdir(parents=True)
    Path(cartella, "c/pregeo/arch/comunt.dat").write_text("@B G224" + "X" * 21 + "ZZ" + "PADOVA".ljust(34) + "D3AA")
    subprocess.run([sys.argv[1], "--dischi", cartella, "-o", dxf, "pf", "dxf", "G224"], check=True, stderr=subprocess.DEVNULL)
    pf = ezdxf.readfile(dxf).modelspace()
assert {e.dxf.text: (e.dxf.insert.x, e.dxf.insert.y) for e in pf.query("TEXT")} == PUNTI
assert [(e.dxf.start.x, e.dxf.end.x) for e in pf.query("LINE")] == [(PUNTI[a][0], PUNTI[b][0]) for a, b in zip(NOMI, NOMI[1:])]
assert len(pf.query("POINT")) == len(PUNTI)

attese = [(*(float(riga[i]) for i in (1, 2, 4, 5)), int(riga[7])) for riga in LINEE]
lette = [(e.dxf.start.x, e.dxf.start.y, e.dxf.end.x, e.dxf.end.y, e.dxf.color) for e in modello.query("LINE")]
assert lette == attese, next((l, a) for l, a in zip(lette, attese) if l != a)
assert [(e.dxf.text, e.dxf.insert.x, e.dxf.insert.y) for e in modello.query("TEXT")] == [("35", 1, 2)]
assert len(modello.query("POINT")) == 13 and {e.dxf.location.x for e in modello.query("POINT")[:12]} == {12.5}

#!/usr/bin/env python3
"""Polylines that an outside library writes come in the same from every version of DXF, to the millimetre."""

import subprocess
import sys
import tempfile
from pathlib import Path

try:
    import ezdxf
except ImportError:
    sys.exit(77)

CASA = [(100.5, 200.125), (110.25, 200), (110, 220.999), (100, 221)]
PORTICO = [(110.25, 200), (130, 205.1234)]
CURVA = [(i, i * i / 7) for i in range(1, 13)]


def righe(programma, cartella, versione):
    documento = ezdxf.new(versione)
    for strato in ("FABBRICATI", "RT", "RP", "ALTRO"):
        documento.layers.add(strato)
    spazio = documento.modelspace()
    aggiungi = spazio.add_polyline2d if versione == "R12" else spazio.add_lwpolyline
    aggiungi(CASA, close=True, dxfattribs={"layer": "FABBRICATI"})
    aggiungi(PORTICO, dxfattribs={"layer": "RT"})
    aggiungi([(1, 1), (2, 2)], dxfattribs={"layer": "ALTRO"})
    spazio.add_polyline3d([(*p, 5) for p in CURVA], dxfattribs={"layer": "RP"})
    spazio.add_circle((0, 0), 5, dxfattribs={"layer": "RC"})
    file = Path(cartella, "a.dxf")
    documento.saveas(file)
    return subprocess.run([programma, "--dischi", cartella, "polilinee", file], check=True, capture_output=True, text=True).stdout.split()


with tempfile.TemporaryDirectory() as cartella:
    lette = {versione: righe(sys.argv[1], cartella, versione) for versione in ("R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018")}
assert len({tuple(r) for r in lette.values()}) == 1, lette
punti = {}
for riga in lette["R12"]:
    campi = riga.split("|")
    if campi[0] == "8":
        punti[campi[1]] = (float(campi[3]), float(campi[2]))
assert sorted(punti.values()) == sorted({(round(x, 3), round(y + 1e-9, 3)) for x, y in CASA + PORTICO + CURVA}), punti
contorni = [r for r in lette["R12"] if r.startswith("7|")]
assert [r.split("|")[-2] for r in contorni] == ["RT", "RP", "RP", "RC", "RC", "RC", "RC"], contorni


def coordinate(righe):
    return {(float(r.split("|")[3]), float(r.split("|")[2])) for r in righe if r.startswith("8|")}


# What this program writes of a drawing, its lines moved by an outside program to a layer that is read, comes in again.
with tempfile.TemporaryDirectory() as cartella:
    disegno, dxf = Path(cartella, "a.csv"), Path(cartella, "a.dxf")
    linee = [(i * 12.3457 - 900, i * i * 0.0371 + 0.0004, i * 7.7771, -i * 1.0013) for i in range(1, 60)]
    disegno.write_text("".join("L,%.10f,%.10f,0,%.10f,%.10f,0,0,1,0\n" % linea for linea in linee) + "P,A,1,2,0,,0\n")
    subprocess.run([sys.argv[1], "--dischi", cartella, "-o", dxf, "disegno", "dxf", disegno], check=True, stderr=subprocess.DEVNULL)
    documento = ezdxf.readfile(dxf)
    spazio = documento.modelspace()
    for linea in spazio.query("LINE"):
        spazio.add_polyline2d([linea.dxf.start, linea.dxf.end], dxfattribs={"layer": "RC"})
    documento.saveas(dxf)
    uscita = subprocess.run([sys.argv[1], "--dischi", cartella, "polilinee", dxf], check=True, capture_output=True, text=True).stdout.split()
attesi = [(x, y) for x1, y1, x2, y2 in linee for x, y in ((x1, y1), (x2, y2))]
lette = coordinate(uscita)
assert all(any(abs(x - a) <= 0.0005001 and abs(y - b) <= 0.0005001 for a, b in lette) for x, y in attesi)
assert len(lette) == len({(round(x, 3), round(y, 3)) for x, y in attesi}), len(lette)

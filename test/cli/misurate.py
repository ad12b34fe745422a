#!/usr/bin/env python3
"""The report of measured distances of the demo act, pair by pair, against distances computed here from the drawing, the TAF
and the archive; the libretto generated from the drawing tells the same pairs and the same distances of the archives."""

import itertools
import math
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

CLI = sys.argv[1]
DEMO = Path(__file__).resolve().parents[2] / "demo/dischi"


def coppie(report):
    """The rows of a report by pair: (kind, value, difference)."""
    trovate = {}
    for riga in report.split("\r\n"):
        if not riga.startswith("PF") or riga.startswith("PF1 "):
            if "( Media )" in riga:
                trovate[ultima].append(("media", float(riga[32:45]), None))
            continue
        ultima = (riga[:15].strip(), riga[18 - 1:32].strip())
        genere = "reale" if "(REALE)" in riga else "taf" if "( TAF )" in riga else "archivio"
        valore = float(riga[32:45].split()[0])
        trovate.setdefault(ultima, []).append((genere, valore, None if genere == "reale" else float(riga[-10:])))
    return trovate


def distanza(a, b):
    return math.hypot(a[0] - b[0], a[1] - b[1])


with tempfile.TemporaryDirectory() as cartella:
    dischi = Path(cartella, "dischi")
    shutil.copytree(DEMO, dischi)
    fiducial = dischi / "c/fiducial/DATI"

    def lancia(*parole):
        comando = [CLI, "--dischi", dischi, "--oggi", "2026-11-21", *parole]
        return subprocess.run(comando, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.decode("cp1252")

    disegno = dischi / "c/libretti/RILIEVO.LXC"
    punti = [riga.split(",") for riga in disegno.read_text("cp1252").splitlines() if riga.startswith("P,PF")]
    reali = {campi[1]: (float(campi[2]), float(campi[3])) for campi in punti}
    taf = {}
    for riga in next(fiducial.glob("[gG]224.[tT][aA][fF]")).read_text("cp1252").splitlines():
        nome = "PF%02d/%03d%s/%s" % (int(riga[13:17]), int(riga[6:10]), riga[11].replace(" ", "0"), riga[:4])
        taf[nome] = (float(riga[114:126]), float(riga[101:113]))
    archivio = next(fiducial.glob("PD2024.*")).read_text("cp1252").splitlines()

    da_disegno = coppie(lancia("misurate", "--disegno", disegno))
    assert set(da_disegno) == set(itertools.combinations(sorted(reali), 2)), sorted(da_disegno)
    for (a, b), righe in da_disegno.items():
        misurate = [float(riga[33:].split()[0]) for riga in archivio if a in riga and b in riga]
        attese = [("reale", distanza(reali[a], reali[b]))]
        attese += [("taf", distanza(taf[a], taf[b]))] if a in taf and b in taf else []
        attese += [("archivio", misurata) for misurata in misurate]
        attese += [("media", sum(misurate) / len(misurate))] if misurate else []
        assert [genere for genere, _, _ in righe] == [genere for genere, _ in attese], (a, b, righe)
        for (genere, valore, differenza), (_, attesa) in zip(righe, attese):
            assert abs(valore - attesa) < 0.00051, (a, b, genere, valore, attesa)
            assert differenza is None or abs(differenza - (attese[0][1] - attesa)) < 0.0011, (a, b, genere, differenza)

    libretto = Path(cartella, "RILIEVO.TXT")
    lancia("-o", libretto, "genera", disegno)
    da_libretto = coppie(lancia("misurate", libretto))
    assert set(da_libretto) <= set(da_disegno) and da_libretto, sorted(da_libretto)
    for coppia, righe in da_libretto.items():
        assert righe[0][:2] == ("reale", 0), righe
        assert [r[:2] for r in righe[1:]] == [r[:2] for r in da_disegno[coppia][1:]], (coppia, righe)
        assert all(abs(r[2] + r[1]) < 0.0005 for r in righe[1:] if r[2] is not None), (coppia, righe)
print(f"{len(da_disegno)} coppie dal disegno, {len(da_libretto)} dal libretto")

#!/usr/bin/env python3
"""What `lirmeto-cli cxf` takes for a city sheet repeated twenty times, and what a plain line-by-line reader takes that only
looks at the same file: processor seconds, the least of some runs each. Ends with 1 when the conversion, writing and all, takes
more than half of the reading.

foglio.py PROGRAM [BORDERS]"""

import itertools
import pathlib
import random
import resource
import subprocess
import sys
import tempfile
import time

VERTICI = 18
GIRI = 7


def foglio(bordi):
    """Borders of eighteen vertices, right-aligned as in real files; five hundred of them are unlike one another."""
    caso = random.Random(1)
    metri = lambda decimali: f"{-(1000 + caso.randrange(9000)):>8}.{decimali}\r\n"
    diversi = ["".join(metri("123") + metri("456") for _ in range(VERTICI)) for _ in range(500)]
    testa = "".join(f"{'0.000':>12}\r\n" for _ in range(5)) + f"{0:>4}\r\n{VERTICI:>4}\r\n"
    righe = [f"BORDO\r\n{b}\r\n  10\r\n{testa}{diversi[b % len(diversi)]}" for b in range(bordi)]
    return "MAPPA\r\nG224_001200\r\n2000\r\n" + "".join(righe) + "EOF\r\n"


def superfici(bordi):
    return "F          20240101\r\n" + "".join(f"{b:<11}{b + 1:>10}\r\n" for b in range(bordi))


def leggi(percorso):
    """The borders as lists of points: nothing is merged, numbered or written."""
    bordi = []
    with open(percorso, encoding="cp1252") as file:
        righe = (riga.strip() for riga in file)
        for riga in righe:
            if riga != "BORDO":
                continue
            codice = next(righe)
            for _ in range(6):
                next(righe)
            isole, vertici = int(next(righe)), int(next(righe))
            for _ in range(isole):
                next(righe)
            bordi.append((codice, [(float(next(righe)), float(next(righe))) for _ in range(vertici)]))
    return bordi


def secondi_del_lettore(percorso):
    inizio = time.process_time()
    leggi(percorso)
    return time.process_time() - inizio


def secondi_del_programma(programma, percorso):
    prima = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run([programma, "-o", percorso.with_suffix(".emp"), "cxf", percorso], check=True, capture_output=True)
    dopo = resource.getrusage(resource.RUSAGE_CHILDREN)
    return dopo.ru_utime + dopo.ru_stime - prima.ru_utime - prima.ru_stime


def main(programma, bordi=10_000):
    with tempfile.TemporaryDirectory() as cartella:
        percorso = pathlib.Path(cartella) / "G224_001200.CXF"
        percorso.write_text(foglio(bordi), encoding="cp1252", newline="")
        percorso.with_suffix(".SUP").write_text(superfici(bordi), encoding="cp1252", newline="")
        lettore = min(secondi_del_lettore(percorso) for _ in range(GIRI))
        cxf = min(secondi_del_programma(programma, percorso) for _ in range(GIRI))
        mega = percorso.stat().st_size / 1e6
    print(f"{bordi} bordi, {mega:.1f} MB: lettore {lettore:.3f} s, cxf {cxf:.3f} s, {cxf / lettore:.0%}")
    return 0 if cxf <= lettore / 2 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], *map(int, itertools.islice(sys.argv, 2, 3))))

#!/usr/bin/env python3
"""Writes the demo installation's tables, in their real layouts, from the readable ones of demo/tabelle.

    strumenti/tabelle_demo.py              writes them
    strumenti/tabelle_demo.py --verifica   tells whether those that are there are the same (exit code 1 when not)

The municipal codes are the public ones of the Italian cadastre.
"""

import csv
import pathlib
import sys

RADICE = pathlib.Path(__file__).resolve().parent.parent
TABELLE = RADICE / "demo" / "tabelle"
PREGEO = RADICE / "demo" / "dischi" / "c" / "pregeo"

# What stands before the first record of a comunt.dat is binary and nobody reads it.
TESTATA = b"CT\x00\x1a\x02\x00" + bytes(range(0x80, 0xA0)) + b"\xff\xfe\x00COMUNT\x00\x00"


def leggi(nome):
    with open(TABELLE / nome, encoding="utf-8", newline="") as f:
        return list(csv.DictReader(f, delimiter=";"))


def record_comune(riga):
    """Columns from 1: 1 section, 2-5 code, 6-24 short name, 25-28 province twice, 29-62 name, 63-66 four characters."""
    testo = (
        f"{riga['sezione']:1}{riga['codice']:4}{riga['comune']:.19}".ljust(24)
        + riga["provincia"] * 2
        + f"{riga['comune']:34}{riga['campo']:4}"
    )
    if len(testo) != 66:
        raise ValueError(f"comunt.dat: {riga['codice']} does not fit its columns")
    return ("@B" + testo + riga["coda"]).encode("cp1252")


def righe_testo(righe):
    return "".join(riga + "\r\n" for riga in righe).encode("cp1252")


def tabelle():
    """Path below pregeo/ and bytes of each table."""
    return {
        "arch/comunt.dat": TESTATA + b"".join(map(record_comune, leggi("comuni.csv"))),
        "exe/prosigle": righe_testo(f"{r['sigla']},{r['nome']}" for r in leggi("province.csv")),
        "exe/collegi.txt": righe_testo(f"{r['collegio']:<24}, {r['provincia']}" for r in leggi("collegi.csv")),
        "exe/qualita.txt": righe_testo(
            ["QUALITA      CODICE"] + [f"{r['nome']:12} {r['codice']}" for r in leggi("qualita.csv")]
        ),
    }


def main():
    verifica = sys.argv[1:] == ["--verifica"]
    if sys.argv[1:] and not verifica:
        print(__doc__, file=sys.stderr)
        return 2
    diverse = []
    for nome, contenuto in tabelle().items():
        file = PREGEO / nome
        if verifica:
            if not file.is_file() or file.read_bytes() != contenuto:
                diverse.append(nome)
        else:
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_bytes(contenuto)
    for nome in diverse:
        print(f"{nome}: not what demo/tabelle gives; run strumenti/tabelle_demo.py")
    return 1 if diverse else 0


if __name__ == "__main__":
    sys.exit(main())

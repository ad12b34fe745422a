#!/usr/bin/env python3
"""The guide prints the tables of the checks and of the window's entries as the program has them.

    guida.py LIRMETO_CLI             says where they differ
    guida.py LIRMETO_CLI --scrivi    puts the program's tables into the guide
"""

import pathlib
import subprocess
import sys
import tempfile

GUIDA = pathlib.Path(__file__).resolve().parent.parent.parent / "docs" / "guida.md"
# Command, the marks around its table, its titles.
TABELLE = [
    ("verifiche", "<!-- tabella delle verifiche -->\n", "| Codice | Gravità | Che cosa dice | Perché |\n|---|---|---|---|\n"),
    ("voci", "<!-- tabella delle voci -->\n", "| Dove | Voce | Che cosa fa |\n|---|---|---|\n"),
]
FINE = "<!-- fine della tabella -->\n"


def tabella(programma, comando, titoli):
    with tempfile.TemporaryDirectory() as dischi:
        esito = subprocess.run([programma, "--dischi", dischi, comando], capture_output=True, text=True, check=True)
    righe = [riga.split("\t") for riga in esito.stdout.splitlines()]
    celle = ["| " + " | ".join(cella.replace("|", "\\|") for cella in riga) + " |\n" for riga in righe]
    return titoli + "".join(celle)


def main(programma, *opzioni):
    diverse = 0
    for comando, inizio, titoli in TABELLE:
        testo = GUIDA.read_text(encoding="utf-8")
        prima, resto = testo.split(inizio)
        scritta, dopo = resto.split(FINE, 1)
        giusta = tabella(programma, comando, titoli)
        if "--scrivi" in opzioni:
            GUIDA.write_text(prima + inizio + giusta + FINE + dopo, encoding="utf-8")
            continue
        for riga in sorted(set(scritta.splitlines()) ^ set(giusta.splitlines())):
            print(("solo nella guida: " if riga in scritta else "manca nella guida: ") + riga)
        diverse += scritta != giusta
    return int(diverse > 0)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

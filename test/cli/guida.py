#!/usr/bin/env python3
"""The guide prints the table of the checks as the program has it.

    guida.py LIRMETO_CLI             says where the two differ
    guida.py LIRMETO_CLI --scrivi    puts the program's table into the guide
"""

import pathlib
import subprocess
import sys
import tempfile

GUIDA = pathlib.Path(__file__).resolve().parent.parent.parent / "docs" / "guida.md"
INIZIO = "<!-- tabella delle verifiche -->\n"
FINE = "<!-- fine della tabella -->\n"


def tabella(programma):
    with tempfile.TemporaryDirectory() as dischi:
        esito = subprocess.run([programma, "--dischi", dischi, "verifiche"], capture_output=True, text=True, check=True)
    righe = [riga.split("\t") for riga in esito.stdout.splitlines()]
    celle = ["| " + " | ".join(cella.replace("|", "\\|") for cella in riga) + " |\n" for riga in righe]
    return "| Codice | Gravità | Che cosa dice | Perché |\n|---|---|---|---|\n" + "".join(celle)


def main(programma, *opzioni):
    testo = GUIDA.read_text(encoding="utf-8")
    prima, resto = testo.split(INIZIO)
    scritta, dopo = resto.split(FINE)
    giusta = tabella(programma)
    if "--scrivi" in opzioni:
        GUIDA.write_text(prima + INIZIO + giusta + FINE + dopo, encoding="utf-8")
        return 0
    for riga in sorted(set(scritta.splitlines()) ^ set(giusta.splitlines())):
        print(("solo nella guida: " if riga in scritta else "manca nella guida: ") + riga)
    return int(scritta != giusta)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

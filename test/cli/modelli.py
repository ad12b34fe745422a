#!/usr/bin/env python3
"""Fills the print models of the demo installation and lets a word processor read them: each opens and says what it must.

The one argument is lirmeto-cli. Exit code 77, a skipped test, where no word processor is installed."""

import pathlib
import shutil
import subprocess
import sys
import tempfile

RADICE = pathlib.Path(__file__).resolve().parent.parent.parent
LIBRETTO = RADICE / "demo" / "dischi" / "c" / "libretti" / "CELERIMETRICO.DAT"
RIGHE = [r"C:\dati\{prova}\x", "Perché: è già così", "  tre   colonne   |"]

# What stands in every filled model, and what only in one.
ATTESI = {
    "lettera_incarico": ["ROSSETTO MARTINA", "PADOVA (PD)", "G224", "46,45,312", "modalità di svolgimento"],
    "consegna_atto": ["MODULO DI CONSEGNA DELL'ATTO", "27 / 2024", "14052024", r"\CELERIMETRICO.DAT", "relazione tecnica"],
    "stampa_semplice": ["GEOMETRA ROSSETTO MARTINA", "foglio 1230", *RIGHE],
}


def compila(programma, dischi, cartella):
    (cartella / "righe.txt").write_bytes("\r\n".join(RIGHE).encode("cp1252"))
    for nome in ATTESI:
        comando = [programma, "--dischi", dischi, "-o", cartella / f"{nome}.rtf", "modello",
                   RADICE / "demo" / "documenti" / "MODELLI_STAMPA" / f"{nome}.rtf", LIBRETTO, cartella / "righe.txt"]
        subprocess.run(comando, check=True)


def leggi(cartella):
    comando = ["soffice", f"-env:UserInstallation=file://{cartella}/profilo", "--headless", "--convert-to",
               "txt:Text (encoded):UTF8", "--outdir", cartella, *(cartella / f"{nome}.rtf" for nome in ATTESI)]
    subprocess.run(comando, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=180)


def mancanti(cartella):
    for nome, frasi in ATTESI.items():
        testo = (cartella / f"{nome}.txt").read_text(encoding="utf-8-sig")
        for frase in frasi:
            if frase not in testo:
                yield f"{nome}: missing {frase!r}"
        for segno in ("_libretto_", "_rilievo_", "_generale_", "_possessori_", "\\cf1", "\\line"):
            if segno in testo:
                yield f"{nome}: still holds {segno!r}"


def principale():
    if shutil.which("soffice") is None:
        return 77
    with tempfile.TemporaryDirectory() as provvisoria:
        cartella = pathlib.Path(provvisoria)
        dischi = cartella / "dischi"
        shutil.copytree(RADICE / "demo" / "dischi", dischi)
        compila(sys.argv[1], dischi, cartella)
        leggi(cartella)
        guasti = list(mancanti(cartella))
    print(*guasti, sep="\n")
    return 1 if guasti else 0


sys.exit(principale())

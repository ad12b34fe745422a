#!/usr/bin/env python3
"""The command line program of this system against that of Windows, byte by byte.

    confronta_windows.py NATIVO WINDOWS LAVORO    runs both on copies of the demo disk that have the same path; ends with
                                                  "N passed, N failed", counted in runs

A run is compared by its exit code, its output, its messages, and by what it left on the drives. The pictures that
"disegno png" paints are each system's own: they are not compared.
"""

import collections
import concurrent.futures
import getpass
import itertools
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

RADICE = pathlib.Path(__file__).resolve().parent.parent
CORSIE = os.cpu_count() or 1
LIBRETTI = ("*.DAT", "*.TXT", "*.LXB", "*.PDF")
ATTI = "c/pregeo/arch/atti/*/LIBRETTO.TXT"
PROPOSTE = "c/pregeo/arch/atti/*/PROPOSTA.TXT"
DISEGNI = ("dxf", "html", "stampa", "scambio")
PARTICELLE = {
    "G224_01230_35.MAP": b"6|PARTICELLA|35|01|SEMINATIVO  |3016|3016|1|2|SN|\r\n",
    "G224_01230_36.MAP": b"6|PARTICELLA|36|01|PRATO       |1200|1200|1|2|SN|\r\n",
}
ELENCO = b"LAYER RT\r\nal punto X=-5021.763 Y=-4460.942\r\nal punto X=-5010.118 Y=-4298.437\r\n"


def trova(dischi, *modelli):
    return sorted(p for m in modelli for p in dischi.glob(m))


def lavori(dischi):
    """The words of each run, on files of these drives."""
    libretti = trova(dischi, *(f"c/libretti/{m}" for m in LIBRETTI), ATTI)
    estratti = trova(dischi, "c/pregeo/estratti/*.EMP")
    documenti = dischi / "c/users" / getpass.getuser() / "Documents/LIRMETO"
    modelli = trova(documenti, "MODELLI_STAMPA/*.rtf")
    for comando, file in itertools.product(("righe", "intestazione", "salva", "riordina", "verifica", "misurate"), libretti):
        yield comando, file
    for formato, file in itertools.product(DISEGNI, (*libretti, *estratti)):
        yield "disegno", formato, file
    for comando, file in itertools.product(("mostra", "salva", "pulisci", "autoallestito"), estratti):
        yield "estratto", comando, file
    for file in estratti:
        yield "verifica", file
        yield "estratto", "elimina", file, "57"
        yield "estratto", "rinomina", file, "57", "58"
    yield "estratto", "somma", *estratti[:3]
    for file in trova(dischi, "c/libretti/*.LXC"):
        yield "genera", file
        yield "genera", file, "--libretto", file.with_suffix(".TXT")
        yield "genera", file, "--opzione", "ORIENTA_AZIMUT=1", "--opzione", "PRECISIONE_ANGOLARE=3"
        yield "misurate", file, "--disegno"
    for file in trova(dischi, "c/libretti/*.DXF"):
        yield "polilinee", file
    for comando, file in itertools.product(("esplodi", "implodi", "spezza", "aree"), (*trova(dischi, PROPOSTE), *libretti[:4])):
        yield "proposta", comando, file
    for file in trova(dischi, "c/pregeo/estratti/*.CXF"):
        yield "cxf", file
    for modello, file in itertools.product(modelli, libretti[:4]):
        yield "modello", modello, file
    for file in libretti[:6]:
        yield "censuario", "archivio", file
    yield from censuario(dischi)
    yield "elenco", dischi / "c/libretti/ELENCO.TXU"
    yield "verifica", "--json", *libretti
    yield from (("comuni",), ("comuni", "G224"), ("comuni", "forl\u00ec"), ("verifiche",), ("voci",), ("--help",), ("--version",),
                ("pf", "PF03/0410/G224"), ("pf", "elenco", "G224"), ("pf", "dxf", "G224"),
                ("codice-fiscale", "RSSDAA80A41G224X"), ("vola",), ("righe", dischi / "manca \u20ac.dat"))
    yield "zip", "crea", dischi / "c/libretti/tutto.zip", *libretti[:5], *estratti
    yield "zip", "estrai", dischi / "c/libretti/tutto.zip", dischi / "c/libretti/estratti"


def censuario(dischi):
    """The census rows of each kind of act, alone and in a libretto that has some."""
    una, altra = (dischi / "c/libretti" / nome for nome in PARTICELLE)
    for dentro in ((), ("--in", dischi / "c/libretti/COMPLETO.DAT")):
        for genere in ("frazionamento", "stralcio"):
            yield "censuario", genere, una, "--aree", "1561:F,1455:R", *dentro
            yield "censuario", genere, una, "--aree", "1561,1455", "--mantieni", *dentro
        for genere in ("nuova-costruzione", "variazione"):
            yield "censuario", genere, una, *dentro
            yield "censuario", genere, una, "--nome", "AAC", "--sr", *dentro
        yield "censuario", "fusione", una, altra, *dentro
        yield "censuario", "fusione", una, altra, "--conserva", "--m31fu", *dentro


def prepara(corsia):
    shutil.rmtree(corsia, ignore_errors=True)
    shutil.copytree(RADICE / "demo/dischi", corsia / "dischi")
    documenti = corsia / "dischi/c/users" / getpass.getuser() / "Documents/LIRMETO"
    shutil.copytree(RADICE / "demo/documenti", documenti)
    for nome, contenuto in {**PARTICELLE, "ELENCO.TXU": ELENCO}.items():
        (corsia / "dischi/c/libretti" / nome).write_bytes(contenuto)


def esegui(programma, dischi, parole):
    comando = [*programma, "--dischi", dischi, "--oggi", "2026-11-22", *parole]
    # Into files: Wine's own processes hold a pipe for seconds after the program's end.
    with tempfile.TemporaryFile() as uscita, tempfile.TemporaryFile() as errori:
        esito = subprocess.run([str(p) for p in comando], cwd=dischi, stdin=subprocess.DEVNULL, stdout=uscita, stderr=errori,
                               timeout=300)
        uscita.seek(0)
        errori.seek(0)
        # What Wine says of itself is none of the program's messages.
        messaggi = b"".join(r for r in errori if not r.startswith(b"wine: "))
        return esito.returncode, uscita.read(), messaggi


def impronta(cartella):
    """What lies on the drives."""
    return {p.relative_to(cartella).as_posix(): p.read_bytes() if p.is_file() else None for p in cartella.rglob("*")}


def percorri(programma, corsia, numero):
    """Every CORSIE-th run, one after the other, and what the drives hold at the end."""
    prepara(corsia)
    dischi = corsia / "dischi"
    scelti = list(itertools.islice(lavori(dischi), numero, None, CORSIE))
    if scelti and any(p[:2] == ("zip", "estrai") for p in scelti):
        primo = next(p for p in lavori(dischi) if p[:2] == ("zip", "crea"))
        scelti = [p for p in scelti if p[0] != "zip"] + [primo, *(p for p in scelti if p[:2] == ("zip", "estrai"))]
    return [(parole, esegui(programma, dischi, parole)) for parole in scelti], impronta(dischi)


def tutte(programma, lavoro):
    with concurrent.futures.ThreadPoolExecutor(CORSIE) as corsie:
        return list(corsie.map(lambda n: percorri(programma, lavoro / str(n), n), range(CORSIE)))


def nome(parole):
    return " ".join(p for p in parole[:2] if isinstance(p, str) and not p.startswith("-")) or str(parole[0])


def differenze(parole, qui, la):
    parti = [p for p, a, b in zip(("codice", "uscita", "messaggi"), qui, la) if a != b]
    if parti:
        print("   diverso:", *(getattr(p, "name", p) for p in parole), "->", ", ".join(parti), qui[0], la[0])
        for a, b in zip(qui[1:], la[1:]):
            if a != b:
                print("     qui: ", a[:300], "\n     Windows:", b[:300])
    return bool(parti)


def main(argomenti):
    if len(argomenti) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    nativo, windows, lavoro = (pathlib.Path(a).resolve() for a in argomenti)
    qui = tutte([nativo], lavoro)
    la = tutte(["wine", windows], lavoro)
    per_comando = collections.defaultdict(lambda: [0, 0])
    for (fatti, lasciato), (fatti_la, lasciato_la) in zip(qui, la):
        for (parole, esito), (_, esito_la) in zip(fatti, fatti_la):
            per_comando[nome(parole)][differenze(parole, esito, esito_la)] += 1
        diversi = sorted(p for p in lasciato.keys() | lasciato_la.keys() if lasciato.get(p) != lasciato_la.get(p))
        per_comando["(i file lasciati)"][bool(diversi)] += 1
        print(*(f"   file diverso: {p}" for p in diversi), sep="\n", end="\n" if diversi else "")
    for comando, (uguali, diversi) in sorted(per_comando.items()):
        print(f"   {comando:32} {uguali:4} uguali {diversi:4} diversi")
    passati, falliti = (sum(v[i] for v in per_comando.values()) for i in (0, 1))
    print(f"{passati} passed, {falliti} failed")
    return 1 if falliti else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

#!/usr/bin/env python3
"""archivi.py LIRMETO_CLI: archives between it and the programs of others, both ways.

Exit code 77 when one of those is not installed; what could be compared has then been found right.
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import zipfile

FILE = {"ESTRATTO.EMP": b"8|1|2.000|3.000|\r\n" * 20000, "VUOTO.TXT": b"", "BYTE.BIN": bytes(range(256)) * 9, "perché.txt": b"\xe0"}
ASCII = [nome for nome in FILE if nome.isascii()]
mancanti = []


def esegui(*parole):
    """Runs a program; false, and said aloud, when it is not there."""
    if shutil.which(parole[0]) is None:
        print(f"MANCA {parole[0]}: confronto non fatto")
        mancanti.append(parole[0])
        return False
    subprocess.run(parole, check=True, stdout=subprocess.DEVNULL)
    return True


def confronta(cartella, nomi=FILE):
    trovati = {p.relative_to(cartella).as_posix(): p.read_bytes() for p in cartella.rglob("*") if p.is_file()}
    assert trovati == {n: FILE[n] for n in nomi}, (cartella, sorted(trovati))


def scritti(archivio, cartella):
    """Others read what lirmeto-cli writes."""
    esegui("unzip", "-tq", archivio)
    if esegui("unzip", "-q", archivio, *ASCII, "-d", cartella / "unzip"):
        confronta(cartella / "unzip", ASCII)
    if esegui("7z", "x", "-bd", "-y", f"-o{cartella / '7z'}", archivio, *ASCII):
        confronta(cartella / "7z", ASCII)
    with zipfile.ZipFile(archivio) as aperto:
        for nome, voce in zip(FILE, aperto.infolist(), strict=True):
            assert voce.filename.encode("cp437") == nome.encode("cp1252") and aperto.read(voce) == FILE[nome], voce


def letti(zip_, cartella, sorgenti):
    """lirmeto-cli reads what others write, and itself."""
    for parole in (("zip", "-jq"), ("7z", "a", "-bd", "-tzip")):
        esegui(*parole, cartella / f"{parole[0]}.zip", *sorgenti)
    with zipfile.ZipFile(cartella / "python.zip", "w", zipfile.ZIP_DEFLATED) as aperto:
        for sorgente in sorgenti:
            aperto.write(sorgente, sorgente.name)
    for archivio in cartella.glob("*.zip"):
        esegui(*zip_, "estrai", archivio, cartella / f"da_{archivio.stem}")
        confronta(cartella / f"da_{archivio.stem}")


def guasti(zip_, cartella):
    """Of an archive with an entry that is damaged the rest comes out, and the exit code says that something did not."""
    archivio = cartella / "guasto.zip"
    with zipfile.ZipFile(archivio, "w") as aperto:
        for nome in ("UNO.TXT", "DUE.TXT", "TRE.TXT"):
            aperto.writestr(nome, nome * 9)
    archivio.write_bytes(archivio.read_bytes().replace(b"DUE.TXTDUE", b"DUE.TXTduo"))
    fatto = subprocess.run((*zip_, "estrai", archivio, cartella / "da_guasto"), capture_output=True)
    assert fatto.returncode == 1 and b"DUE.TXT" in fatto.stderr and b"UNO.TXT" not in fatto.stderr, fatto
    assert {p.name for p in (cartella / "da_guasto").iterdir()} == {"UNO.TXT", "TRE.TXT"}


def protetti(zip_, cartella, sorgenti):
    """Of an archive with an entry that has a password the rest comes out, whoever made it and whatever the cipher."""
    aperta, chiusa = sorgenti[0], sorgenti[2]
    for prima, poi in (
        (("zip", "-jq"), ("zip", "-jq", "-P", "segreto")),
        (("7z", "a", "-bd", "-tzip"), ("7z", "a", "-bd", "-tzip", "-psegreto", "-mem=AES256")),
    ):
        archivio = cartella / f"protetto_{prima[0]}.zip"
        if not (esegui(*prima, archivio, aperta) and esegui(*poi, archivio, chiusa)):
            continue
        dove = cartella / archivio.stem
        fatto = subprocess.run((*zip_, "estrai", archivio, dove), capture_output=True)
        detto = fatto.stderr.decode()
        assert fatto.returncode == 1 and f"{chiusa.name} - è protetta da password" in detto, fatto
        assert aperta.name not in detto, fatto
        confronta(dove, [aperta.name])


def main(cli):
    with tempfile.TemporaryDirectory() as nome:
        cartella = pathlib.Path(nome)
        (cartella / "dischi/c").mkdir(parents=True)
        sorgenti = [cartella / n for n in FILE]
        for sorgente in sorgenti:
            sorgente.write_bytes(FILE[sorgente.name])
        zip_ = (cli, "--dischi", cartella / "dischi", "zip")
        (cartella / "nostro.zip").write_bytes(b"vecchio")
        esegui(*zip_, "crea", cartella / "nostro.zip", *sorgenti)
        scritti(cartella / "nostro.zip", cartella)
        letti(zip_, cartella, sorgenti)
        guasti(zip_, cartella)
        protetti(zip_, cartella, sorgenti)
    return 77 if mancanti else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))

#!/usr/bin/env python3
"""uccisioni.py LIRMETO_CLI: the program killed while it saves leaves the old file or the new one, whole.

LIRMETO_UCCISIONI says how often, else 8 times.
Two libretti are saved over one result in turn; each run is killed at a moment of its own, most of them in its last part,
where it writes. Nothing but the result may be left in the folder.
"""

import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time

TESTA = "0|01022024|7|G224|0010|1|ROSSI MARIO|GEOMETRA|PADOVA|\r\n9|12|10|20|0|VER|FR|TOTALE|\r\n"


def libretto(cartella, nome, punti):
    file = cartella / nome
    file.write_text(TESTA + "".join(f"8|{nome[0]}{i}|{i}.000|{2 * i}.000|\r\n" for i in range(punti)), newline="")
    return file


def main(cli, uccisioni):
    caso = random.Random(20261121)
    with tempfile.TemporaryDirectory() as nome:
        cartella = pathlib.Path(nome)
        (cartella / "dischi").mkdir()
        (cartella / "uscita").mkdir()
        uscita = cartella / "uscita" / "R.DAT"
        # one longer than the other: what is left of the longer one would be seen
        atti = [libretto(cartella, "A.DAT", 40000), libretto(cartella, "B.DAT", 30000)]
        comandi = [[cli, "--dischi", cartella / "dischi", "salva", atto, "-o", uscita] for atto in atti]
        interi, durata = [], 0.0
        for comando in comandi:
            inizio = time.monotonic()
            subprocess.run(comando, check=True, stderr=subprocess.DEVNULL)
            durata = max(durata, time.monotonic() - inizio)
            interi.append(uscita.read_bytes())
        giri = uccisi = 0
        while uccisi < uccisioni:
            processo = subprocess.Popen(comandi[giri % 2], stderr=subprocess.DEVNULL)
            time.sleep(durata * caso.uniform(0.4, 1.0))
            processo.kill()
            finito = processo.wait() == 0
            giri, uccisi = giri + 1, uccisi + (not finito)
            durata *= 0.93 if finito else 1.03  # so that most kills come near the end, however busy the machine is
            assert uscita.read_bytes() in interi, f"neither old nor new after run number {giri}"
            resti = [file.name for file in uscita.parent.iterdir() if file != uscita]
            assert len(resti) <= 1, resti  # a new file that had its name already, and not yet its place
            for resto in resti:
                (uscita.parent / resto).unlink()
        print(f"{giri} runs, {uccisi} killed before their end, always whole")


if __name__ == "__main__":
    main(sys.argv[1], int(os.environ.get("LIRMETO_UCCISIONI", "8")))

#!/usr/bin/env python3
"""The surveyor's guide as a page for the packages.

    guida_html.py CARTELLA    writes CARTELLA/guida.html and its pictures beside it; needs cmark-gfm
"""

import collections
import pathlib
import re
import shutil
import subprocess
import sys

DOCS = pathlib.Path(__file__).resolve().parent.parent / "docs"
PAGINA = """<!DOCTYPE html>
<html lang="it">
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Lirmeto: guida per il tecnico</title>
<style>
:root {{ color-scheme: light dark; }}
body {{ font: 16px/1.5 "Segoe UI", "Liberation Sans", sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em; }}
img {{ max-width: 100%; }}
code {{ font: 0.9em Consolas, "Liberation Mono", monospace; }}
pre {{ overflow: auto; padding: 0.6em 1em; border: 1px solid #8886; }}
table {{ border-collapse: collapse; }}
th, td {{ border: 1px solid #8886; padding: 0.2em 0.6em; text-align: left; vertical-align: top; }}
</style>
{}
</html>
"""


def con_ancore(html):
    """Headings named as the guide's own links call them: in small letters, without signs, counted when they come again."""
    viste = collections.Counter()

    def titolo(trovato):
        livello, testo = trovato.groups()
        nome = re.sub(r"[^\w -]", "", re.sub("<[^>]*>", "", testo)).lower().replace(" ", "-")
        volte = viste[nome]
        viste[nome] += 1
        return f'<h{livello} id="{nome}{f"-{volte}" if volte else ""}">{testo}</h{livello}>'

    return re.sub(r"<h(\d)>(.*?)</h\1>", titolo, html)


def main(cartella):
    cartella = pathlib.Path(cartella)
    html = subprocess.run(["cmark-gfm", "-e", "table", DOCS / "guida.md"], check=True, capture_output=True).stdout.decode()
    html = con_ancore(html)
    manca = set(re.findall(r'href="#([^"]*)"', html)) - set(re.findall(r'id="([^"]*)"', html))
    if manca:
        sys.exit(f"la guida rimanda a capitoli che non ci sono: {', '.join(sorted(manca))}")
    shutil.rmtree(cartella, ignore_errors=True)
    for immagine in re.findall(r'src="([^"]*)"', html):
        (cartella / immagine).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(DOCS / immagine, cartella / immagine)
    (cartella / "guida.html").write_text(PAGINA.format(html), encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])

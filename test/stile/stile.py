#!/usr/bin/env python3
"""The house's rules as tests.

    stile.py REGOLA               checks the project; prints file:line: finding; exit code 1 when there are any
    stile.py REGOLA --autoprova   proves that the rule finds what it must and nothing else, on invented files

A rule is a function from a project (its root and its files) to findings.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

RADICE = pathlib.Path(__file__).resolve().parent.parent.parent
CODICE = ("src/", "test/", "fuzz/", "bench/", "strumenti/")
SORGENTI = (".cpp", ".h")
MASSIMO_RIGHE = 600


class Progetto:
    def __init__(self, radice):
        self.radice = radice

    def file(self):
        """Paths, relative and with "/", of what is (or is about to be) in the repository."""
        git = shutil.which("git")
        comando = [git or "", "-c", "safe.directory=*", "-C", str(self.radice), "ls-files", "-z", "-co", "--exclude-standard"]
        esito = subprocess.run(comando, capture_output=True) if git else None
        if esito and esito.returncode == 0:
            nomi = esito.stdout.decode().split("\0")[:-1]
        else:
            fuori = ("build/", "demo/uscita/", "demo/.lavoro/", ".git/")
            nomi = [p.relative_to(self.radice).as_posix() for p in self.radice.rglob("*")]
            nomi = [n for n in nomi if not n.startswith(fuori) and "__pycache__" not in n]
        return sorted(n for n in nomi if (self.radice / n).is_file())

    def sorgenti(self, *cartelle):
        return [n for n in self.file() if n.endswith(SORGENTI) and n.startswith(cartelle or CODICE)]

    def righe(self, nome):
        return self.testo(nome).split("\n")

    def testo(self, nome):
        return (self.radice / nome).read_bytes().decode("utf-8", "replace")


def senza_commenti(testo):
    """The same lines with comments and the insides of literals blanked."""
    pezzi = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.S)
    return pezzi.sub(lambda m: m[0] if m[0][0] in "\"'" and "include" in testo[: m.start()].rsplit("\n", 1)[-1]
                     else re.sub(r"[^\n]", " ", m[0]), testo)


def cerca(progetto, nomi, modello, perche):
    for nome in nomi:
        for numero, riga in enumerate(senza_commenti(progetto.testo(nome)).split("\n"), 1):
            trovato = re.search(modello, riga)
            if trovato:
                yield f"{nome}:{numero}: {trovato[0].strip()}: {perche}"


def finestre(progetto):
    """No toolkit header outside the windows, their tests and measures, and the tools."""
    fuori = [n for n in progetto.sorgenti() if not n.startswith(("src/ui/", "test/ui/", "bench/ui/", "strumenti/"))]
    return cerca(progetto, fuori, r'#\s*include\s*[<"](Q[A-Z]|Qt[A-Z]?\w*/|gtk|wx/|X11/)\S*', "toolkit header outside ui/")


def numeri(progetto):
    """Number and locale functions that depend on the locale or hide errors."""
    vietate = r"\b(atof|atoi|atol|strto(d|f|ld|l|ul)|sto(d|f|ld)|v?sscanf|setlocale|to_string|imbue)\s*\(|std::locale|<c?locale(\.h)?>"
    return cerca(progetto, progetto.sorgenti("src/"), vietate, "read and write numbers with base/numeri.h")


def lunghezza(progetto):
    for nome in progetto.file():
        if nome.startswith(CODICE) and nome.endswith(SORGENTI + (".py", ".sh", ".cmake")):
            quante = len(progetto.righe(nome)) - 1
            if quante > MASSIMO_RIGHE:
                yield f"{nome}:{quante}: more than {MASSIMO_RIGHE} lines"


def risalite(progetto):
    return cerca(progetto, progetto.sorgenti(), r'#\s*include\s*[<"][^>"]*\.\./', "include as <layer/file.h>")


def strati(progetto):
    """Layers include only what src/CMakeLists.txt puts below them; the machine's side is known to ui and cli alone."""
    sotto = {}
    for nome, altri in re.findall(r"^strato\((\w+)([^)]*)\)", progetto.testo("src/CMakeLists.txt"), re.M):
        sotto[nome] = {nome}.union(*(sotto.get(a, {a}) for a in altri.split()))
    noti = set(sotto) | {"ui", "cli"}
    sotto.update({"ui": noti - {"cli"}, "cli": noti - {"ui"}})
    for nome in progetto.sorgenti("src/"):
        strato = nome.split("/")[1]
        for numero, riga in enumerate(progetto.righe(nome), 1):
            incluso = re.match(r'\s*#\s*include\s*[<"](\w+)/', riga)
            if incluso and incluso[1] in noti and incluso[1] not in sotto.get(strato, noti):
                yield f"{nome}:{numero}: {strato}/ does not stand on {incluso[1]}/"


def formato(progetto):
    if not (progetto.radice / ".clang-format").is_file():
        yield ".clang-format:1: not there"
    nomi = progetto.sorgenti()
    esito = subprocess.run(["clang-format", "--dry-run", "-Werror", *nomi], cwd=progetto.radice, capture_output=True, text=True)
    yield from (riga for riga in esito.stderr.split("\n") if re.search(r": (error|warning): ", riga))


REGOLE = {f.__name__: f for f in (finestre, numeri, lunghezza, risalite, strati, formato)}

# For each rule: invented files, and of these the ones it must find.
BASE = {".clang-format": "BasedOnStyle: LLVM\n", "src/CMakeLists.txt": "strato(base)\nstrato(core base)\nstrato(alto core)\n"}
AUTOPROVE = {
    "finestre": ({"src/core/a.cpp": "#include <QString>\n", "src/core/b.cpp": "#include <QtCore/qglobal.h>\n",
                  "test/core/c.cpp": '#  include "QFile"\n', "src/ui/d.cpp": "#include <QWidget>\n",
                  "src/core/e.cpp": "// #include <QString>\n#include <Quota.h>\n", "test/ui/f.cpp": "#include <QtTest>\n"},
                 {"src/core/a.cpp", "src/core/b.cpp", "test/core/c.cpp"}),
    "numeri": ({"src/core/a.cpp": "double d = std::stod(t);\n", "src/core/b.cpp": "x = atof (p);\n",
                "src/core/c.cpp": "std::locale l;\n", "src/core/d.cpp": "auto t = std::to_string(1.5);\n",
                "src/core/e.cpp": "// stod(t) is banned\nauto k = \"strtod(\"; std::from_chars(a, b, c);\n",
                "test/core/f.cpp": "double d = std::stod(t);\n"},
               {f"src/core/{c}.cpp" for c in "abcd"}),
    "lunghezza": ({"src/core/a.cpp": "\n" * 601, "src/core/b.cpp": "\n" * 600, "test/stile/c.py": "\n" * 700,
                   "demo/d.py": "\n" * 700}, {"src/core/a.cpp", "test/stile/c.py"}),
    "risalite": ({"src/core/a.cpp": '#include "../base/testo.h"\n', "src/core/b.cpp": "#include <base/testo.h>\n// ../\n"},
                 {"src/core/a.cpp"}),
    "strati": ({"src/core/a.cpp": "#include <alto/x.h>\n", "src/base/b.h": "#include <core/x.h>\n",
                "src/alto/c.cpp": "#include <base/x.h>\n#include <core/x.h>\n", "src/cli/d.cpp": "#include <ui/x.h>\n",
                "src/core/e.cpp": "#include <ui/x.h>\n", "src/ui/f.cpp": "#include <alto/x.h>\n"},
               {"src/core/a.cpp", "src/base/b.h", "src/cli/d.cpp", "src/core/e.cpp"}),
    "formato": ({"src/core/a.cpp": "int   x;\n", "src/core/b.cpp": "int x;\n"}, {"src/core/a.cpp"}),
}


def autoprova(nome):
    file, attesi = AUTOPROVE[nome]
    with tempfile.TemporaryDirectory() as cartella:
        radice = pathlib.Path(cartella)
        for percorso, testo in {**BASE, **file}.items():
            (radice / percorso).parent.mkdir(parents=True, exist_ok=True)
            (radice / percorso).write_text(testo, encoding="utf-8")
        trovati = {riga.split(":")[0] for riga in REGOLE[nome](Progetto(radice))}
    if trovati != attesi:
        print(f"{nome}: found {sorted(trovati)}, expected {sorted(attesi)}")
    return trovati == attesi


def main(argomenti):
    if not argomenti or argomenti[0] not in REGOLE or argomenti[1:] not in ([], ["--autoprova"]):
        print(__doc__, file=sys.stderr)
        return 2
    if argomenti[1:]:
        return 0 if autoprova(argomenti[0]) else 1
    trovati = list(REGOLE[argomenti[0]](Progetto(RADICE)))
    print("\n".join(trovati))
    return 1 if trovati else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

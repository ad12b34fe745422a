# Shared by ./avvia and ./prova: what they need on a bare Debian 12, and how they build. Sourced, never run.
# shellcheck shell=bash

RADICE=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export DEBIAN_FRONTEND=noninteractive

PACCHETTI_PROGRAMMA=(g++ cmake ninja-build ccache lld libcli11-dev qt6-base-dev qt6-svg-dev libqt6svg6 qt6-qpa-plugins
  fonts-liberation fonts-dejavu-core qt6-translations-l10n zlib1g-dev libarchive-dev
  libcairo2-dev pkg-config qt6-image-formats-plugins)
PACCHETTI_PROVE=(libgtest-dev clang clang-format clang-tidy libclang-rt-14-dev python3 python3-ezdxf git zip unzip
  p7zip-full dbus-daemon)
PACCHETTI_GUIDA=(cmark-gfm python3) # of strumenti/guida_html.py

dice() { printf '== %s\n' "$*"; }

# fallisce MESSAGGIO [CODICE]: the last line of a run that did not go well.
fallisce() {
  printf 'FALLITO: %s\n' "$1" >&2
  exit "${2:-1}"
}

# Runs a command as root, by sudo where need be.
da_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo --preserve-env=DEBIAN_FRONTEND "$@"
  else
    return 126
  fi
}

installato() { [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

# installa PACCHETTO...: installs those that are missing; does nothing, quickly, when all are there.
installa() {
  local pacchetto mancanti=()
  command -v dpkg-query >/dev/null || {
    dice "Questo sistema non è Debian: si prosegue con i programmi che ci sono."
    return
  }
  for pacchetto in "$@"; do installato "$pacchetto" || mancanti+=("$pacchetto"); done
  [ ${#mancanti[@]} -gt 0 ] || return 0
  dice "Installo i pacchetti mancanti: ${mancanti[*]}"
  da_root apt-get update -q ||
    fallisce "impossibile aggiornare l'elenco dei pacchetti; da amministratore: apt-get install ${mancanti[*]}"
  da_root apt-get install -y -q --no-install-recommends -o DPkg::Lock::Timeout=300 "${mancanti[@]}" ||
    fallisce "installazione non riuscita; da amministratore: apt-get install ${mancanti[*]}"
}

# compila PRESET [DESTINAZIONE...]: configures and builds, showing all of the output only when it goes wrong.
compila() {
  local preset=$1 registro="$RADICE/build/$1.log" inizio=$SECONDS
  shift
  mkdir -p "$RADICE/build"
  if [ -f "$RADICE/build/$preset/build.ninja" ] || [ -f "$RADICE/build/windows/$preset/build.ninja" ]; then
    dice "Compilo ciò che è cambiato ($preset)"
  else
    dice "Compilo ($preset): la prima volta può durare alcuni minuti"
  fi
  (cd "$RADICE" && cmake --preset "$preset") >"$registro" 2>&1 || {
    cat "$registro" >&2
    fallisce "configurazione $preset"
  }
  (cd "$RADICE" && cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}) 2>&1 |
    tee -a "$registro" | avanzamento || {
    grep -vE '^\[[0-9]+/[0-9]+\] ' "$registro" | tail -n 60 >&2
    fallisce "compilazione $preset (tutto il resoconto: $registro)"
  }
  dice "Compilato in $((SECONDS - inizio)) s"
}

# One line that moves on a terminal, nothing elsewhere.
avanzamento() {
  if [ -t 1 ]; then
    grep --line-buffered -oE '^\[[0-9]+/[0-9]+\]' | while read -r passo; do printf '\r   %s ' "$passo"; done
    printf '\r                 \r'
  else
    cat >/dev/null
  fi
}

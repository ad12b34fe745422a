# Shared by strumenti/windows and strumenti/prova_windows: the cross compiler, the libraries built with it out of Debian's
# source packages, and Wine. Sourced after comune.sh, never run.
# shellcheck shell=bash

WINDOWS="$RADICE/build/windows"
LIBRERIE="$WINDOWS/librerie"
SORGENTI="$WINDOWS/sorgenti"
CROSS=x86_64-w64-mingw32

# What the logic, the command line and their tests need; wine is what they run under.
PACCHETTI_CROSS=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev dpkg-dev patch xz-utils cmake ninja-build ccache libcli11-dev
  googletest wine wine64)

# Wine with a machine of its own: nothing of the user's is seen or changed, nothing is asked.
prepara_wine() {
  export WINEPREFIX="$WINDOWS/wine" WINEDEBUG=-all WINEARCH=win64 WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
  [ -f "$WINEPREFIX/system.reg" ] || timeout 300 wine wineboot --init >"$WINDOWS/wine.log" 2>&1 || return 1
}

# Ends the machine of Wine that prepara_wine has started.
ferma_wine() { wineserver -k >/dev/null 2>&1 || true; }

# scarica_sorgente PACCHETTO: the source package, unpacked with Debian's own patches, into SORGENTI/PACCHETTO. The lists of
# source packages are fetched apart, so that those of this machine stay as they are.
scarica_sorgente() {
  local pacchetto=$1 apt="$SORGENTI/.apt" opzioni suite lavoro
  [ ! -d "$SORGENTI/$pacchetto" ] || return 0
  mkdir -p "$apt/liste/partial" "$apt/parti" "$apt/cache/archives/partial"
  opzioni=(-o "Dir::Etc::sourcelist=$apt/lista" -o "Dir::Etc::sourceparts=$apt/parti" -o "Dir::State::lists=$apt/liste"
    -o "Dir::Cache=$apt/cache" -o APT::Sandbox::User=root -o Acquire::Retries=3)
  if [ ! -f "$apt/aggiornate" ]; then
    : >"$apt/lista"
    [ ! -f /etc/apt/sources.list ] || sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$apt/lista"
    for suite in /etc/apt/sources.list.d/*.sources; do
      [ ! -f "$suite" ] || sed 's/^Types:.*/Types: deb-src/' "$suite" >"$apt/parti/$(basename "$suite")"
    done
    apt-get "${opzioni[@]}" update -q || return 1
    touch "$apt/aggiornate"
  fi
  lavoro=$(mktemp -d "$SORGENTI/$pacchetto.XXXXXX")
  # The newest; where a mirror has lost its files, that of the release itself.
  for suite in "" "/$(. /etc/os-release && echo "${VERSION_CODENAME:-stable}")"; do
    if (cd "$lavoro" && apt-get "${opzioni[@]}" source -q "$pacchetto$suite"); then
      mv "$(find "$lavoro" -mindepth 1 -maxdepth 1 -type d | head -n 1)" "$SORGENTI/$pacchetto" && rm -rf "$lavoro"
      return
    fi
  done
  rm -rf "$lavoro"
  return 1
}

# cmake_cross NOME SORGENTE OPZIONE...: builds and installs among the libraries.
cmake_cross() {
  local nome=$1 sorgente=$2
  shift 2
  cmake -S "$sorgente" -B "$WINDOWS/$nome" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$RADICE/cmake/windows.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$LIBRERIE" -DCMAKE_C_COMPILER_LAUNCHER=ccache \
    -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DBUILD_SHARED_LIBS=OFF "$@"
}

# Only what reads ZIP archives.
libreria_archivi() {
  local spente=() zlib=/usr/$CROSS/lib/libz.a
  scarica_sorgente libarchive || return 1
  for voce in TEST TAR CPIO CAT OPENSSL LZMA ZSTD BZip2 LIBXML2 EXPAT LZ4 ICONV LIBB2 PCREPOSIX XATTR ACL WERROR CNG INSTALL; do
    spente+=("-DENABLE_$voce=OFF")
  done
  cmake_cross archivi "$SORGENTI/libarchive" "${spente[@]}" -DZLIB_LIBRARY="$zlib" -DZLIB_WINAPI=OFF \
    -DZLIB_WINAPI_WITH_LIB="$zlib" && cmake --build "$WINDOWS/archivi" --target archive_static || return 1
  cp "$WINDOWS/archivi/libarchive/libarchive_static.a" "$LIBRERIE/lib/libarchive.a"
  cp "$SORGENTI"/libarchive/libarchive/archive{,_entry}.h "$LIBRERIE/include/"
}

libreria_prove() {
  cmake_cross googletest /usr/src/googletest -DBUILD_GMOCK=OFF && cmake --build "$WINDOWS/googletest" --target install
}

# Headers alone, where the cross compiler sees nothing else of this system.
libreria_opzioni() {
  mkdir -p "$LIBRERIE/share/cmake"
  ln -sfn /usr/include/CLI "$LIBRERIE/include/CLI"
  cp -r /usr/share/cmake/CLI11 "$LIBRERIE/share/cmake/"
}

# What the windows need of Qt; its tools are those of this system. Tablets are off because their header is not in that source.
# Direct2D stays on, though its own platform is not shipped: without it the printing would miss the fonts of DirectWrite.
libreria_qt() {
  local spente=()
  scarica_sorgente qt6-base || return 1
  for voce in sql network dbus opengl dynamicgl vulkan xml testlib concurrent tabletevent; do
    spente+=("-DFEATURE_$voce=OFF")
  done
  cmake_cross qt "$SORGENTI/qt6-base" "${spente[@]}" -DBUILD_SHARED_LIBS=ON -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF &&
    cmake --build "$WINDOWS/qt" --parallel "$(nproc)" && cmake --install "$WINDOWS/qt" --strip
}

# libreria NOME: makes it once; the output goes to a log, its end to the terminal when it fails.
libreria() {
  local nome=$1 inizio=$SECONDS
  [ ! -f "$LIBRERIE/$nome.fatta" ] || return 0
  mkdir -p "$LIBRERIE/lib" "$LIBRERIE/include" "$SORGENTI"
  "libreria_$nome" >"$WINDOWS/$nome.log" 2>&1 || {
    tail -n 30 "$WINDOWS/$nome.log" >&2
    return 1
  }
  touch "$LIBRERIE/$nome.fatta"
  dice "Libreria per Windows ($nome): $((SECONDS - inizio)) s"
}

# shellcheck shell=bash
# What the recipes for Windows and for Linux share: the libraries of a program's one file are built
# from Debian's sources into a cache outside the clone, once for each version of them, of the
# compiler and of the recipe. To be sourced by a recipe, in whose folder libraries.cmake says how
# Qt is configured, libraries.patch, if there is one, what is changed of it, and toolchain.cmake how
# programs are made:
#   provide CACHE STEPS PACKAGE...

versionOf() { dpkg-query -W -f '${Version}\n' "$1"; }
# Qt's tools on this machine and the libraries must be of one version.
qt=$(versionOf qt6-base-dev)

# provide CACHE STEPS PACKAGE...: prints the folder of the libraries. Where it is not there yet, the
# command STEPS makes them in the folder "prefix". They depend on the versions of the packages.
provide() {
  local cache=${XDG_CACHE_HOME:-$HOME/.cache}/$1 recipe key
  recipe=$(cat ../static-qt/{recipe.sh,*.cmake} libraries* toolchain.cmake && dpkg-query -W "${@:3}")
  key=$(sha256sum <<<"$recipe" | cut -c1-12)
  local libraries=$cache/qt-$qt-$key
  folder=$PWD
  options=(-G Ninja -C "$folder/libraries.cmake" -DCMAKE_TOOLCHAIN_FILE="$folder/toolchain.cmake")

  mkdir -p "$cache"
  exec 3>"$cache/lock"
  flock 3
  if [[ ! -d $libraries ]]; then
    work=$cache/work
    rm -rf "$work"
    mkdir "$work"
    cd "$work" || exit
    "$2" >&2
    mv prefix "$libraries"
    cd /
    rm -rf "$work"
  fi
  echo "$libraries"
}

# step TEXT COMMAND...: runs the command with its output in the log, and tells how far it is.
step() {
  local text=$1 running
  "${@:2}" >>log 2>&1 &
  running=$!
  echo "$text"
  while sleep 1 && kill -0 "$running" 2>/dev/null; do
    ((SECONDS % 30)) || printf '  %d:%02d min, done: %s\n' $((SECONDS / 60)) $((SECONDS % 60)) \
      "$(grep -oE '^\[[0-9]+/[0-9]+\]' log | tail -n 1)"
  done
  wait "$running" || { tail -n 40 log && echo "The whole log: $work/log" && exit 1; }
}

# fetch PACKAGE VERSION: its source, in PACKAGE-source. Reads Debian's source entries apart from the
# system's own settings.
fetch() {
  local apt=(apt-get -q -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$work/sources"
    -o Dir::State::Lists="$work/lists" -o APT::Sandbox::User="$(id -un)")
  if [[ ! -d sources ]]; then
    mkdir -p sources lists/partial
    cp /etc/apt/sources.list.d/debian.sources sources/ || cp /etc/apt/sources.list sources/debian.list
    sed -Ei 's/^Types:.*/Types: deb-src/; s/^deb /deb-src /' sources/*
    "${apt[@]}" update
  fi
  "${apt[@]}" source "$1=$2"
  mv "$1"-*/ "$1-source"
}

# build SOURCE FOLDER [OPTION...]
build() {
  cmake "${options[@]}" -DCMAKE_INSTALL_PREFIX="$work/prefix" "${@:3}" -S "$1" -B "$2"
  cmake --build "$2"
  cmake --install "$2" --prefix "$work/prefix"
}

# buildQt TEXT [OPTION...]
buildQt() {
  step "Fetching the sources of Qt $qt" fetch qt6-base "$qt"
  [[ ! -e $folder/libraries.patch ]] || patch -s -p1 -d qt6-base-source <"$folder/libraries.patch"
  step "$1: ten minutes and more, this once" build qt6-base-source qt "${@:2}"
  mkdir -p prefix/licences
  cp qt6-base-source/debian/copyright prefix/licences/Qt-and-its-parts.txt
  cp qt6-base-source/LICENSES/{L,}GPL-3.0-only.txt prefix/licences
}

# licence PACKAGE NAME: that of what is linked from a package's files.
licence() { cp "/usr/share/doc/$1/copyright" "prefix/licences/$2.txt"; }

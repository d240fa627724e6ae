#!/bin/sh
# windows-qt.sh FOLDER: builds Qt for Windows into the folder, once, from Debian's own source package. Builds only what
# the window (core, gui, widgets) and its tests (testlib) need, as shared libraries. Takes about an hour on two cores.
# shellcheck disable=SC2086 # words
set -eu

target=$1
[ ! -f "$target/ready" ] || exit 0

work=$target-build
rm -rf "$work" "$target"
mkdir -p "$work/lists/partial" "$work/archives/partial"
as_root=$([ "$(id -u)" = 0 ] || echo sudo)

# Gets the source package from the mirror that this system uses, without changing the system's lists.
$as_root apt-get update -qq
# shellcheck disable=SC2016
apt-get indextargets --format 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Identifier: Packages' 'Origin: Debian' 'Component: main' >"$work/sources.list"
own_list="-o Dir::Etc::SourceList=$work/sources.list -o Dir::Etc::SourceParts=- -o Dir::State::Lists=$work/lists
    -o Dir::Cache=$work -o Dir::Cache::Archives=$work/archives -o APT::Sandbox::User="
cd "$work"
apt-get $own_list update -qq
apt-get $own_list source -qq qt6-base/bookworm
source=$(echo qt6-base-*/)

# directwrite can't be linked without direct2d. Freetype draws the letters.
off=
for feature in network sql dbus xml concurrent printsupport vulkan direct2d directwrite directwrite3 icu zstd glib \
    system_zlib pkg_config tabletevent jpeg gif ico textmarkdownreader textmarkdownwriter textodfwriter; do
    off="$off -DFEATURE_$feature=OFF"
done
cmake -G Ninja -S "$source" -B build -Wno-dev \
    -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_SYSTEM_PROCESSOR=x86_64 \
    -DCMAKE_C_COMPILER=x86_64-w64-mingw32-gcc-posix -DCMAKE_CXX_COMPILER=x86_64-w64-mingw32-g++-posix \
    -DCMAKE_RC_COMPILER=x86_64-w64-mingw32-windres \
    -DCMAKE_FIND_ROOT_PATH=/usr/x86_64-w64-mingw32 \
    -DCMAKE_FIND_ROOT_PATH_MODE_PROGRAM=NEVER -DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY \
    -DCMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=ONLY \
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DCMAKE_INSTALL_PREFIX="$target" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no \
    -DFEATURE_system_png=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_freetype=OFF \
    $off
cmake --build build -j2
cmake --install build --strip
mkdir -p "$target/licences"
cp "$source"/LICENSES/* "$source/debian/copyright" "$target/licences/"
cd /
rm -rf "$work"
touch "$target/ready"

# Shared by the commands of this folder: where things are, what a bare Debian 12 lacks for them, and
# how its sources are fetched. To be read after scripts/setup.sh, in the repository's folder.

cross_packages=(g++-mingw-w64-x86-64-posix dpkg-dev icoutils)
packing_packages=(nsis zip imagemagick)
wine_packages=(wine wine64 fonts-wine fonts-liberation2 fonts-dejavu-core xvfb openbox xdotool
    imagemagick)

# Of the user and not of this tree: what is built here takes half an hour, and is for every clone.
cache=${CORVANA_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/corvana/windows}

# The version of the source from which an installed package was built.
source_version() { dpkg-query -W -f '${source:Version}' "$1"; }

# What is off is what Corvana doesn't use, and what would bring a library that Windows lacks. With
# FEATURE_opengl=OFF alone, instead of INPUT_opengl, Qt's build breaks.
qt_options=(-DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DFEATURE_static_runtime=ON -DINPUT_opengl=no
    -DFEATURE_{vulkan,tabletevent,network,dbus,xml,concurrent,sql,icu,glib,zstd}=OFF
    -DFEATURE_{pkg_config,direct2d1_1}=OFF
    -DFEATURE_system_{zlib,png,jpeg,freetype,harfbuzz,pcre2,doubleconversion,libb2}=OFF)

# Where the Qt for Windows is: of another version, or with other options, elsewhere.
qt_folder() {
    local options
    options=$(sha256sum <<<"${qt_options[*]}")
    printf '%s/qt-%s-%s' "$cache" "$(source_version qt6-base-dev | tr + -)" "${options:0:8}"
}

# fetch_source NAME VERSION FOLDER: unpacks a source package of the distribution. Its sources are
# asked for in a configuration of our own: what the machine asks for stays as it is.
fetch_source() {
    local name=$1 version=$2 folder=$3 apt=$cache/apt file
    [[ ! -d $folder ]] || return 0
    mkdir -p "$apt"/{sources,lists/partial,cache/archives/partial}
    : >"$apt/sources.list"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [[ ! -f $file ]] || sed -n '/bookworm/s/^deb /deb-src /p' "$file" >>"$apt/sources.list"
    done
    for file in /etc/apt/sources.list.d/*.sources; do
        ! grep -qs '^Suites:.*bookworm' "$file" ||
            sed 's/^Types:.*/Types: deb-src/' "$file" >"$apt/sources/${file##*/}"
    done
    cat >"$apt/apt.conf" <<END
Dir::Etc::SourceList "$apt/sources.list";
Dir::Etc::SourceParts "$apt/sources";
Dir::State::Lists "$apt/lists";
Dir::Cache "$apt/cache";
APT::Sandbox::User "$(id -un)";
END
    say "Fetching the source of $name $version from the distribution"
    mkdir -p "$cache/sources"
    (
        cd "$cache/sources"
        export APT_CONFIG=$apt/apt.conf
        apt-get -q update && apt-get -q source --download-only "$name=$version"
    ) >"$cache/fetch.log" 2>&1 || fail "$(cat "$cache/fetch.log")" \
        $'\n'"The source of $name $version can't be fetched."
    # Unpacked under another name: an interrupted one must not pass for the whole.
    rm -rf "$folder.new"
    dpkg-source -x "$cache/sources/${name}_${version#*:}.dsc" "$folder.new" >"$cache/fetch.log" 2>&1 ||
        fail "$(cat "$cache/fetch.log")" $'\n'"The source of $name can't be unpacked."
    mv "$folder.new" "$folder"
}

# The licences of the libraries that are within a static Qt, from its source, in one text.
qt_notices() {
    local version source part notices
    version=$(source_version qt6-base-dev)
    source=$cache/sources/qt6-base-$version
    notices=$cache/$version/qt-notices.txt
    if [[ ! -f $notices ]]; then
        fetch_source qt6-base "$version" "$source" >&2
        mkdir -p "${notices%/*}"
        for part in blake2 double-conversion easing freetype harfbuzz-ng icc libjpeg libpng md4c \
            pcre2 pixman rfc6234 sha3 tinycbor zlib; do
            printf '\n\n%s\n\n' "In Qt: $part"
            cat "$source/src/3rdparty/$part"/{*LICEN[CS]E*,*COPYING*,*license*.txt} 2>/dev/null || true
        done >"$notices.new"
        rm -r "$source"
        mv "$notices.new" "$notices"
    fi
    printf '%s' "$notices"
}

# configure_windows QT: the program for Windows, with the database that a build for this machine
# makes and the sources of the libraries that are installed here.
configure_windows() {
    local qt=$1 version source csv notices
    [[ -f $qt/lib/cmake/Qt6/Qt6Config.cmake ]] || fail "There is no Qt in $qt."
    version=$(source_version libsqlitecpp-dev)
    source=$cache/sources/sqlitecpp-$version
    fetch_source sqlitecpp "$version" "$source"
    version=$(source_version libcsv-dev)
    csv=$cache/sources/libcsv-$version
    fetch_source libcsv "$version" "$csv"
    notices=$(qt_notices)
    say "Building the delivered database (release)"
    configure release
    cmake --build --preset release --target delivered_database
    cmake --preset windows -DCORVANA_WINDOWS_QT="$qt" -DCMAKE_PREFIX_PATH="$qt" \
        -DCORVANA_SQLITECPP_SOURCE="$source" -DCORVANA_LIBCSV_SOURCE="$csv" \
        -DCORVANA_QT_NOTICES="$notices" -DCORVANA_HOST_BUILD="$PWD/build/release" >/dev/null
}

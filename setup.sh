# For play and check, which source it from the project's root.

die() {
    printf '%s: %s\n' "${0##*/}" "$1" >&2
    exit 1
}

# install_packages GROUP...: whatever packages.txt lists under these headings and is missing here.
install_packages() {
    local wanted present missing as_root=()
    wanted=$(awk -v groups="$*" '
        BEGIN { split(groups, list, " "); for (i in list) on["[" list[i] "]"] }
        /^\[/ { reading = $1 in on; next }
        reading && NF && !/^#/ { print $1 }' packages.txt | sort -u)
    # It fails when it knows nothing of a package, or is itself not there; either way the package is missing.
    # shellcheck disable=SC2086 # one word a package
    present=$({ dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null || true; } |
        sed -n 's/^installed //p' | sort -u)
    missing=$(comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$present") | paste -sd ' ')
    if [[ -z $missing ]]; then return; fi

    command -v apt-get >/dev/null ||
        die "no apt here to install what is needed; the list of packages, by their Debian names: $missing"
    if ((EUID)); then
        command -v sudo >/dev/null || die "neither root nor sudo; have an administrator run: apt-get install $missing"
        as_root=(sudo)
    fi
    echo "Installing with apt, which can take some minutes: $missing"
    # A third-party source out of order must not stop us: the installation shows whether the lists suffice.
    "${as_root[@]}" apt-get -qq update || true
    # shellcheck disable=SC2086
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=120 -o Dpkg::Use-Pty=0 \
        install --no-install-recommends $missing >/dev/null || die "apt could not install: $missing"
}

# build PRESET TESTS [ARGUMENT...]: TESTS is ON or OFF, the arguments are those of cmake --build.
build() {
    local fresh=() foreign
    # One that root has built, perhaps; CMake would end in the middle.
    foreign=build
    if mkdir -p "build/$1" 2>/dev/null; then foreign=$(find "build/$1" -maxdepth 1 ! -writable -print -quit); fi
    if [[ $foreign ]]; then
        die "$(id -un) cannot write to $PWD/$foreign; remove build, or take it over: sudo chown -R $(id -un) build"
    fi
    # A tree that was built before the checkout was moved or copied is of no use here.
    if ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$1/CMakeCache.txt" 2>/dev/null; then fresh=(--fresh); fi
    cmake --preset "$1" "${fresh[@]}" -DLUCKYCUP_BUILD_TESTS="$2" >/dev/null
    cmake --build --preset "$1" --parallel "$(nproc)" "${@:3}"
}

#!/usr/bin/env bash
# Makes FOLDER/root, with the libraries of another architecture: make_root.sh ARCHITECTURE FOLDER
# Nothing is installed: apt loads the packages with lists and a status of its own, dpkg unpacks them. Exits with
# non-zero where the packages cannot be had. A root of the same packages is left as it is.
set -euo pipefail
architecture=$1 folder=$2
packages=(libgnustep-base-dev zlib1g-dev libgtest-dev libhwy-dev libfast-float-dev)

[ "$(cat "$folder/packages" 2>/dev/null)" = "${packages[*]}" ] && exit
rm -rf "$folder"
mkdir -p "$folder"/root "$folder"/apt/{lists,archives}/partial
apt=$(realpath "$folder/apt") root=$folder/root
touch "$apt/status"

foreign_apt() {
    apt-get -qq -o APT::Architecture="$architecture" -o APT::Architectures="$architecture" -o APT::Sandbox::User= \
        -o Dir::State="$apt" -o Dir::State::Lists="$apt/lists" -o Dir::State::status="$apt/status" \
        -o Dir::Cache="$apt" -o Dir::Cache::archives="$apt/archives" -o Acquire::Languages=none "$@"
}

foreign_apt update
foreign_apt install --download-only --yes --no-install-recommends "${packages[@]}" >/dev/null
for package in "$apt"/archives/*.deb; do
    dpkg -x "$package" "$root"
done
# Links that begin with "/": the linker follows them from this machine's root.
find "$root"/usr/lib/*-linux-gnu -type l -lname '/lib/*' | while read -r link; do
    ln -srf "$root$(readlink "$link")" "$link"
done
rm -r "$apt"
echo "${packages[*]}" >"$folder/packages"

#!/usr/bin/env bash
# Makes Debian's packages of a build, installs them with dpkg below a folder of its own, uses each, and takes them away again.
# usage: deb.sh BUILD_FOLDER COMPILER FOLDER_OF_THE_INSTALL_TESTS
set -euo pipefail
build=$1
compiler=$2
install_tests=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export PATH=$PATH:/usr/sbin:/sbin LC_ALL=C  # where dpkg looks for ldconfig, and what it says
unset DPKG_ROOT DPKG_ADMINDIR DPKG_FORCE
fail() { echo "$1" >&2; exit 1; }
skip() { echo "skipped: $1"; exit 77; }
for command in dpkg dpkg-deb cpack; do
  command -v "$command" >/dev/null || skip "there is no $command"
done

# Twice, under two umasks: what lies in them is the same to the byte.
made() {
  (umask "$1" && cpack --config "$build/CPackConfig.cmake" -B "$scratch/made-$1") >"$scratch/said" 2>&1 || fail "$(tail -n 20 "$scratch/said")"
  rm -rf "$scratch/made-$1/_CPack_Packages"
}
made 0077
made 0002
packages=("$scratch"/made-0002/*.deb)
for package in "${packages[@]}"; do
  for member in debian-binary control.tar.gz data.tar.xz; do
    ar p "$package" $member >"$scratch/one"
    ar p "$scratch/made-0077/${package##*/}" $member | cmp "$scratch/one" - || fail "${package##*/} is made anew differently"
    [[ -s $scratch/one ]] || fail "${package##*/} has no $member"
  done
done
file_of() { ls "$scratch/made-0002/$1_"*.deb; }
names=()
for package in "${packages[@]}"; do
  names+=("$(dpkg-deb -f "$package" Package)")
done
engine=$(printf '%s\n' "${names[@]}" | grep -x 'libqelproengine[0-9]*')
[[ " ${names[*]} " == *" libqelproengine-dev "*" qelpro "* ]] || fail "the packages are ${names[*]}"
if command -v lintian >/dev/null; then
  lintian --allow-root --fail-on error "${packages[@]}" || fail "lintian refuses the packages"
fi

# dpkg with a root and a list of packages of its own. On that list stands what the packages need of others.
root=$scratch/root
admin=$scratch/admin
mkdir -p "$root" "$admin/updates" "$admin/info" "$admin/triggers"
touch "$admin/available" "$admin/status"
dpkg_there() {
  dpkg --instdir="$root" --admindir="$admin" --log=/dev/null --force-not-root --force-script-chrootless "$@" >"$scratch/said" 2>&1
}
there() { dpkg_there "$@" || fail "dpkg $*: $(<"$scratch/said")"; }
# refused REASON ARGUMENTS...
refused() {
  if dpkg_there "${@:2}"; then
    fail "dpkg ${*:2} succeeds"
  fi
  grep -q "$1" "$scratch/said" || fail "dpkg ${*:2} tells no \"$1\": $(<"$scratch/said")"
}
for package in "${packages[@]}"; do
  dpkg-deb -f "$package" Depends | tr ',|' '\n\n' | sed -E 's/^ *([^ ]+).*/\1/'
done | sort -u | while read -r needed; do
  [[ " ${names[*]} " != *" $needed "* ]] || continue
  if dpkg-query -s "$needed" 2>/dev/null | grep -q '^Status: install ok installed'; then
    dpkg-query -s "$needed" | sed -E '/^(Conffiles:|Depends:|Pre-Depends:|Recommends:|Suggests:| )/d'
  else
    printf 'Package: %s\nStatus: install ok installed\nMaintainer: nobody\nArchitecture: all\nVersion: 999\nDescription: none\n' "$needed"
  fi
  echo
done >"$admin/status"
if ! dpkg_there --install "$(file_of "$engine")"; then
  ((EUID == 0)) || skip "dpkg does not install as an ordinary user here: $(tail -n 1 "$scratch/said")"
  fail "$(<"$scratch/said")"
fi

# What a package needs is there first, of the version that it was made with.
there --purge "$engine"
[[ -z $(find "$root" -mindepth 1) ]] || fail "left of $engine: $(find "$root" -mindepth 1 | head)"
refused 'dependency problems' --install "$(file_of libqelproengine-dev)"
there --purge libqelproengine-dev
there --install "${packages[@]}"
refused 'dependency problems' --remove "$engine"

# What lies in them belongs to root, and all may read it.
for package in "${packages[@]}"; do
  if found=$(dpkg-deb -c "$package" | grep -vE '^(drwxr-xr-x|-rw-r--r--|lrwxrwxrwx|-rwxr-xr-x (.*) \./usr/bin/[^/]+$) *root/root|^-rwxr-xr-x root/root .* \./usr/bin/[^/]+$'); then
    fail "odd permissions in ${package##*/}: $found"
  fi
done
usr=$root/usr
library=$(find "$usr/lib" -name 'libQELPROEngine.so.*' -type f)
libraries=$(dirname "$library")
[[ $libraries == "$usr/lib/$("$compiler" -print-multiarch)" ]] || fail "the libraries are in $libraries"

uses() {
  # With the development files a program is built.
  "$install_tests/outside_program.sh" "$usr" "$compiler" "$install_tests/outside"

  # The tool finds the libraries where the system looks for them, not by a path of its own.
  while read -r program; do
    if readelf -d "$program" | grep -E 'RPATH|RUNPATH'; then
      fail "$program has a path of its own"
    fi
  done < <(find "$usr" -type f \( -perm -u+x -o -name '*.so*' \) ! -name '*.sh')
  export LD_LIBRARY_PATH=$libraries
  local file=$scratch/file.pro
  rm -f "$file"
  "$usr/bin/qelpro" new "$file"
  "$usr/bin/qelpro" set "$file" Flow-1 FillTime 1.5
  [[ $("$usr/bin/qelpro" get "$file" Flow-1 FillTime) == 1.5 ]] || fail "the tool does not read back what it stored"

  # Its manual pages and completions stand where Debian's man and shells look for them.
  local page command
  while read -r command; do
    page=$usr/share/man/man1/qelpro${command:+-$command}.1.gz
    gzip -dc "$page" | grep -q '^\.TH ' || fail "$page is no manual page"
    if command -v man >/dev/null; then
      [[ $(man -M "$usr/share/man" -w "qelpro${command:+-$command}") == "$page" ]] || fail "man does not find $page"
    fi
  done < <(echo && "$usr/bin/qelpro" complete -- '')
  bash -c "source '$usr/share/bash-completion/completions/qelpro' && complete -p qelpro" >/dev/null || fail "bash completes nothing"
  grep -q '^#compdef .*qelpro' "$usr/share/zsh/vendor-completions/_qelpro" || fail "zsh completes nothing"
  grep -q '^complete .*qelpro' "$usr/share/fish/vendor_completions.d/qelpro.fish" || fail "fish completes nothing"

  # The module, which Python compiles for itself as it is imported.
  if [[ " ${names[*]} " == *" python3-qelpro "* ]]; then
    # The Python that the package is made for, not the first one in PATH.
    PYTHONPATH=$usr/lib/python3/dist-packages PYTHONDONTWRITEBYTECODE= /usr/bin/python3 - "$file" "$usr" <<'END' || fail "the module does not work"
import sys

import qelpro

assert qelpro.__file__.startswith(sys.argv[2] + "/lib/python3/dist-packages/"), qelpro.__file__
process = qelpro.ProcessFile(sys.argv[1])
assert process["Flow-1"]["FillTime"] == 1.5
process["Flow-1"]["FillTime"] = 2.5
assert qelpro.ProcessFile(sys.argv[1])["Flow-1"]["FillTime"] == 2.5
END
    [[ -n $(find "$usr/lib/python3/dist-packages/qelpro" -name '*.pyc') ]] || fail "Python compiled nothing: it is not known whether that goes"
  fi
}
uses

# An upgrade: the same again.
there --install "${packages[@]}"
uses

# Each takes away what it brought, and all of them together everything.
for name in $(printf '%s\n' "${names[@]}" | grep -vx "$engine") "$engine"; do
  there --purge "$name"
  dpkg-deb -c "$(file_of "$name")" | sed -nE 's/^[^d].* \.(\/[^ ]+)( -> .*)?$/\1/p' | while read -r file; do
    [[ ! -e $root$file && ! -L $root$file ]] || fail "$name leaves $file"
  done
done
left=$(find "$root" -mindepth 1)
[[ -z $left ]] || fail "left: $left"
left=$(find "$admin/info" -name '*qelpro*')
[[ -z $left ]] || fail "dpkg still knows of $left"
echo "installed, used and purged: ${names[*]}"

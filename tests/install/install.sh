#!/usr/bin/env bash
# install.sh BUILD SOURCE COMPILER [FLAGS]: installs what was built into a folder of its own and uses it from there.
set -euo pipefail
build=$1 source=$2 compiler=$3 flags=${4:-}
prefix=$(mktemp -d)
trap 'rm -rf -- "$prefix"' EXIT
fail() {
    echo "install: $*" >&2
    exit 1
}
cmake --install "$build" --prefix "$prefix/usr" >"$prefix/log" 2>&1 || { cat "$prefix/log"; fail "nothing installed"; }
# From another place than it was installed to.
mv "$prefix/usr" "$prefix/moved"

mapfile -t binaries < <(find "$prefix/moved" -type f \( -path '*/bin/*' -o -name '*.so*' \))
((${#binaries[@]} >= 4)) || fail "only ${binaries[*]}"
for binary in "${binaries[@]}"; do
    ! readelf -d "$binary" | grep -E 'R(UN)?PATH' | grep -v '\[\$ORIGIN[^:]*\]' ||
        fail "$binary looks for libraries where it was built"
done
for plugin in "$prefix"/moved/lib*/fieldbus-pendant/applications/*.so "$prefix"/moved/lib*/*/fieldbus-pendant/applications/*.so; do
    [[ -e $plugin ]] || continue
    ! nm -DC --defined-only "$plugin" | cut -d' ' -f3- |
        grep -vE '^(CreateZelCustom(Data|Widget)|FieldbusSettingLib::.*)$' || fail "$plugin exports this"
done

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$source/CMakeLists.txt")
for program in fieldbus-pendant fieldbusctl; do
    [[ $("$prefix/moved/bin/$program" --version) == "$program $version" ]] || fail "$program is not of $version"
done

cmake -S "$source/examples/heartbeat" -B "$prefix/example" -DCMAKE_PREFIX_PATH="$prefix/moved" \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" >"$prefix/log" 2>&1 &&
    cmake --build "$prefix/example" >>"$prefix/log" 2>&1 || { cat "$prefix/log"; fail "the example is not built"; }
"$prefix/example/heartbeat" "$(find "$source/controller/plant" -name heartbeat.xml)" | grep '^Modbus TCP slave: '

# Installs the Debian packages the build and the tests need, when missing.
# Sourced by scripts/play and scripts/test.
greenlark_deps() {
    local want=(build-essential cmake ninja-build pkg-config libsdl2-dev libespeak-ng-dev espeak-ng-data libspeechd-dev
                libpulse-dev libsamplerate0-dev
                libgtest-dev googletest xdg-user-dirs "$@")
    local missing=()
    for p in "${want[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq </dev/null
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" </dev/null
}

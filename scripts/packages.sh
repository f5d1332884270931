# Installs what is missing, and only that. Sourced by ./dev.

# debian_packages <purpose> ...: the packages of scripts/debian-packages.txt that
# serve these purposes.
debian_packages() {
  local -A installed=()
  local missing=() status purpose package program why
  if command -v dpkg-query >/dev/null; then
    while read -r status package; do
      [[ $status == installed ]] && installed[$package]=1
    done < <(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n')
  fi
  while read -r purpose package program why; do
    [[ -n $purpose && $purpose != '#'* && " $* " == *" $purpose "* ]] || continue
    [[ -v installed[$package] ]] && continue
    [[ $program != - ]] && command -v "$program" >/dev/null && continue
    missing+=("$package")
  done <scripts/debian-packages.txt
  ((${#missing[@]} == 0)) || install_debian "${missing[@]}"
}

install_debian() {
  local as_root=()
  local install=(apt-get install --yes --no-install-recommends "$@")
  say "missing Debian packages: $*"
  command -v apt-get >/dev/null ||
    fail "this is not Debian; install what these packages hold by your system's own means"
  if ((EUID != 0)); then
    sudo -n true 2>/dev/null ||
      fail "may not install them. Run this, then ./dev $verb again:
  sudo sh -c 'apt-get update && ${install[*]}'"
    as_root=(sudo -n)
  fi
  as_root+=(env DEBIAN_FRONTEND=noninteractive)
  "${as_root[@]}" apt-get update || say "no fresh package lists; trying with those that are here"
  "${as_root[@]}" "${install[@]}" -o DPkg::Lock::Timeout=300 || fail "apt-get could not install them"
}

# The npm packages, at the versions of the lock file. None of them needs its
# install script, so none is run. Their Node comes first on the PATH from here on,
# since Debian's may be too old for them.
npm_packages() {
  local hash record=node_modules/.package-lock-hash
  hash=$(sha256sum <package-lock.json)
  if [[ ! -f $record || $(<"$record") != "$hash" ]]; then
    say "npm packages, as package-lock.json lists them"
    npm ci --ignore-scripts --no-audit --no-fund --no-update-notifier
    printf '%s\n' "$hash" >"$record"
  fi
  export PATH=$root/node_modules/.bin:$PATH
}

# Sourced by the scripts that need Debian packages.
# shellcheck shell=bash
# shellcheck disable=SC2034 # the lists are used where this is sourced

build_packages=(g++ cmake ninja-build qt6-base-dev libgl-dev)
run_packages=(fonts-liberation)
virtual_display_packages=(xvfb scrot)
# What makes a Debian package, and what looks it over.
packaging_packages=(dpkg-dev file)
package_check_packages=(lintian desktop-file-utils appstream man-db)

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif [ -t 0 ]; then
    sudo "$@"
  else
    sudo -n "$@" # nobody is there to type a password
  fi
}

# need_packages NAME...: installs those that are missing, and asks nothing.
need_packages() {
  if ! command -v apt-get >/dev/null; then
    echo "No apt-get here, so nothing is installed. Needed are, by their Debian names: $*" >&2
    return
  fi
  local package missing=()
  for package in "$@"; do
    if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
      missing+=("$package")
    fi
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  echo "Installing: ${missing[*]}"
  local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300)
  # One source that does not answer is no reason to stop; what is still missing then, install says.
  as_root "${apt[@]}" update || echo "apt-get update failed; going on with the lists there are" >&2
  if ! as_root "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null; then
    echo "Could not install: ${missing[*]}" >&2
    return 1
  fi
}

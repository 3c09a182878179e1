#!/usr/bin/env bash
# Drives `panelsim run` in a tmux pseudo-terminal as a person would: reads the screen, presses
# keys, opens a screen, quits, then replays the recorded session with `panelsim script`.
set -euo pipefail
panelsim="$1"
work="$2"
rm -rf "$work" && mkdir -p "$work" && cd "$work"
server="panelsim_test_$$"
trap 'tmux -L "$server" kill-server 2>/dev/null || true' EXIT

# Waits until the screen shows the text; fails with the screen after 20 s.
wait_for() {
  for _ in $(seq 200); do
    if tmux -L "$server" capture-pane -p | grep -qF -- "$1"; then
      return 0
    fi
    sleep 0.1
  done
  echo "the screen never showed: $1" >&2
  tmux -L "$server" capture-pane -p >&2
  exit 1
}

tmux -L "$server" new-session -d -x 140 -y 50 \
  "'$panelsim' run --record session.scn; echo panelsim-exited-\$?; sleep 30"
wait_for "top CID_01_01_N1 (0)"
wait_for "q quit"

# Open a status message screen by its name, then go back with Backspace.
tmux -L "$server" send-keys "/CID_02_44_N1" Enter
wait_for "top CID_02_44_N1 (115)"
wait_for '123 text "CID_02_44_N1"'
wait_for "pages: CID_01_01_N1 CID_02_44_N1"
tmux -L "$server" send-keys 5 BSpace
wait_for "top CID_01_01_N1 (0)"
tmux -L "$server" send-keys q
wait_for "panelsim-exited-0"

cat >> session.scn <<'SCN'
expect stack CID_01_01_N1
expect closed CID_02_44_N1
SCN
grep -qx "open CID_02_44_N1" session.scn
grep -qx "key back" session.scn
"$panelsim" script session.scn

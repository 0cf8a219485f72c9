#!/usr/bin/env bash
# Runs the real vost on a virtual screen of its own, with trayer as the tray host,
# as a person would use it: xdotool clicks and types; the program's test state
# file (VOST_TEST_STATE_FILE, "key=value" lines) tells what the tray item and the
# popover show.
#
#   uitest.sh VOST SCENARIO     scenarios: signin, second-launch, quit-menu,
#                               no-tray, configuration-error, chats [OUT_DIR],
#                               screenshots OUT_DIR
set -euo pipefail
vost=$(readlink -f "${1:?usage: uitest.sh VOST SCENARIO}")
scenario=${2:?usage: uitest.sh VOST SCENARIO}
shift 2

work=$(mktemp -d /tmp/vost-ui.XXXXXX)
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime
mkdir -p "$HOME" && mkdir -m 700 -p "$XDG_RUNTIME_DIR"
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_CURRENT_DESKTOP
# No session bus: Qt's tray item then uses the X11 tray protocol that trayer speaks.
export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/no-bus
export VOST_TEST_STATE_FILE=$work/state VOST_DEMO_DETERMINISTIC=1 VOST_DEMO_NOW=1760000000
export QT_QPA_PLATFORM=xcb
state_file=$VOST_TEST_STATE_FILE
pids=()
vost_pid=

cleanup() {
    local status=$?
    for pid in $vost_pid "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    if [ $status -ne 0 ] && [ -f "$work/vost.log" ]; then
        echo "--- vost's output"; cat "$work/vost.log"
        echo "--- state"; cat "$state_file" 2>/dev/null || true
    fi
    rm -rf "$work"
}
trap cleanup EXIT

fail() { echo "FAIL: $*" >&2; exit 1; }
note() { echo "- $*"; }

start_screen() {
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
    pids+=($!)
    for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
    [ -s "$work/display" ] || fail "Xvfb did not start"
    export DISPLAY=:$(head -n1 "$work/display")
}

start_tray() {
    trayer --edge top --align right --widthtype pixel --width 120 --height 24 \
        --transparent false --tint 0xdcdcdc >/dev/null 2>&1 &
    pids+=($!)
    sleep 1
}

start_vost() {
    "$vost" "$@" >>"$work/vost.log" 2>&1 &
    vost_pid=$!
}

value() { sed -n "s/^$1=//p" "$state_file" 2>/dev/null | head -n1; }

# wait_for KEY PATTERN [SECONDS]: until the state's KEY matches the extended regex.
wait_for() {
    local key=$1 pattern=$2 limit=${3:-15}
    for _ in $(seq $((limit * 10))); do
        [[ "$(value "$key")" =~ ^($pattern)$ ]] && { note "$key=$(value "$key")"; return 0; }
        kill -0 "$vost_pid" 2>/dev/null || fail "vost exited while waiting for $key=$pattern"
        sleep 0.1
    done
    fail "$key is '$(value "$key")', expected $pattern"
}

# Clicks the middle of the tray item with the given button.
click_tray() {
    wait_for trayGeometry '[1-9][0-9]*,[0-9]+,[1-9][0-9]*,[1-9][0-9]*'
    local x y w h
    IFS=, read -r x y w h <<<"$(value trayGeometry)"
    xdotool mousemove $((x + w / 2)) $((y + h / 2)) click "${1:-1}"
}

# The tray menu is the program's one small visible window; its last entry sits at
# its bottom.
click_last_menu_entry() {
    local id geometry x y w h
    for _ in $(seq 30); do
    for id in $(xdotool search --all --onlyvisible --pid "$vost_pid" --name '.*' 2>/dev/null); do
        geometry=$(xwininfo -id "$id" | awk '/Absolute upper-left X/{x=$NF} /Absolute upper-left Y/{y=$NF}
            /Width:/{w=$NF} /Height:/{h=$NF} END{print x, y, w, h}')
        read -r x y w h <<<"$geometry"
        if [ "$h" -gt 32 ] && [ "$h" -lt 120 ] && [ "$w" -gt 60 ] && [ "$w" -lt 400 ]; then
            xdotool mousemove $((x + w / 3)) $((y + h - 14)) sleep 0.3 click 1
            return 0
        fi
    done
    sleep 0.1
    done
    xdotool search --all --onlyvisible --pid "$vost_pid" --name '.*' >&2 || true
    fail "no tray menu on screen"
}

popover_window_visible() { xdotool search --onlyvisible --name '^Vost$' >/dev/null 2>&1; }

type_and_submit() {
    xdotool type --delay 20 "$1"
    xdotool key Return
}

# Clicks at X,Y inside the popover.
click_in_popover() {
    local x y w h
    IFS=, read -r x y w h <<<"$(value popoverGeometry)"
    xdotool mousemove $((x + $1)) $((y + $2)) sleep 0.2 click 1
}

# Signs in, waits for the chat list to settle, opens the chat in row ROW (from 0)
# of the sidebar and waits for its messages.
open_chat_in_row() {
    wait_for chats '[1-9][0-9]*' 20
    local previous=
    for _ in $(seq 20); do
        sleep 0.5
        [ "$(value chats)" = "$previous" ] && break
        previous=$(value chats)
    done
    # The search field takes the top 50 pixels; rows are 60 high.
    click_in_popover 140 $((50 + 60 * $1 + 30))
    wait_for selectedChat '.+'
    wait_for messages '[1-9][0-9]*' 20
}

capture_popover() {
    local x y w h
    IFS=, read -r x y w h <<<"$(value popoverGeometry)"
    import -window root -crop "${w}x${h}+${x}+${y}" +repage "$1"
    note "saved $1"
}

quit_and_expect_success() {
    local status=0
    for _ in $(seq 100); do kill -0 "$vost_pid" 2>/dev/null || break; sleep 0.1; done
    kill -0 "$vost_pid" 2>/dev/null && fail "vost is still running"
    wait "$vost_pid" || status=$?
    vost_pid=
    [ $status -eq 0 ] || fail "vost exited with status $status"
    note "vost exited with status 0"
}

sign_in() {
    wait_for step PhoneNumber
    type_and_submit "+1 555 0100"
    wait_for step VerificationCode
    type_and_submit "22222"
    wait_for step Ready
}

case "$scenario" in
signin)
    start_screen; start_tray; start_vost --demo
    wait_for tray visible
    wait_for tooltip Vost
    wait_for popover hidden
    click_tray 1
    wait_for popover visible
    popover_window_visible || fail "no visible window named Vost"
    wait_for mode tray
    sign_in
    # The demo account's unread total, on the badge and in the label, once the
    # chat list has settled.
    wait_for unread '[1-9][0-9]*'
    previous=
    for _ in $(seq 20); do
        sleep 1
        [ "$(value unread)" = "$previous" ] && break
        previous=$(value unread)
    done
    wait_for tooltip "Vost, $(value unread) unread messages"
    # Esc closes the popover; a click opens it again; Ctrl+Q quits.
    xdotool key Escape
    wait_for popover hidden
    click_tray 1
    wait_for popover visible
    click_tray 1
    wait_for popover hidden
    click_tray 1
    wait_for popover visible
    xdotool key ctrl+q
    quit_and_expect_success
    ;;
second-launch)
    start_screen; start_tray; start_vost --demo
    wait_for tray visible
    wait_for popover hidden
    timeout 10 "$vost" --demo >>"$work/vost.log" 2>&1 || fail "the second launch did not exit with 0"
    note "the second launch exited with 0"
    wait_for popover visible 5
    kill -0 "$vost_pid" || fail "the first instance is gone"
    ;;
quit-menu)
    start_screen; start_tray; start_vost --demo
    click_tray 1
    wait_for popover visible
    # A right click closes the popover and opens the menu; its last entry quits.
    click_tray 3
    wait_for popover hidden
    sleep 0.5
    click_last_menu_entry
    quit_and_expect_success
    ;;
no-tray)
    start_screen; start_vost --demo
    wait_for mode window
    wait_for popover visible
    popover_window_visible || fail "no visible window named Vost"
    start_tray
    wait_for mode tray 10
    wait_for tray visible
    wait_for popover hidden
    ;;
configuration-error)
    # A copy of the program in a bundle without credentials and without the demo.
    mkdir -p "$work/bundle/bin" "$work/bundle/share/vost"
    cp "$vost" "$work/bundle/bin/vost"
    echo '{"CFBundleShortVersionString": "0.1.0"}' >"$work/bundle/share/vost/Info.json"
    vost=$work/bundle/bin/vost
    start_screen; start_tray; start_vost
    wait_for configured no
    wait_for step Idle
    click_tray 1
    wait_for popover visible
    [ $# -gt 0 ] && { sleep 1; capture_popover "$1/configuration-error.png"; }
    ;;
chats)
    # The chat list fills, a click opens a chat with its messages, a typed message
    # sent with Enter (after Shift+Enter made a new line) appears at its end.
    start_screen; start_tray; start_vost --demo
    click_tray 1
    wait_for popover visible
    sign_in
    open_chat_in_row 1
    chat=$(value selectedChat)
    sleep 1
    [ $# -gt 0 ] && capture_popover "$1/open-chat.png"
    # Tab: chat list, then transcript, then composer.
    xdotool key Tab Tab
    xdotool type --delay 20 "Hello from"
    xdotool key shift+Return
    xdotool type --delay 20 "the UI test :)"
    wait_for composer 'Hello from the UI test :\)'
    xdotool key Return
    wait_for lastMessage 'Hello from the UI test :\)'
    wait_for composer ''
    [ "$(value selectedChat)" = "$chat" ] || fail "the open chat changed to $(value selectedChat)"
    # Down in the list selects the next chat.
    click_in_popover 140 $((50 + 30))
    wait_for selectedChat '.+'
    first=$(value selectedChat)
    xdotool key Down
    for _ in $(seq 30); do [ "$(value selectedChat)" != "$first" ] && break; sleep 0.1; done
    [ "$(value selectedChat)" != "$first" ] || fail "Down did not move the selection"
    note "Down moved the selection to $(value selectedChat)"
    ;;
screenshots)
    out=$(readlink -f "${1:?screenshots needs an output folder}")
    for appearance in light dark; do
        rm -rf "$HOME" && mkdir -p "$HOME/.config/Corvella"
        printf '[General]\nvostAppearanceMode=%s\n' "$appearance" >"$HOME/.config/Corvella/Vost.conf"
        start_screen; start_tray; start_vost --demo
        click_tray 1
        wait_for popover visible
        wait_for step PhoneNumber
        sleep 1
        capture_popover "$out/login-$appearance.png"
        type_and_submit "+1 555 0100"
        wait_for step VerificationCode
        sleep 1
        capture_popover "$out/login-code-$appearance.png"
        xdotool type --delay 20 "22222"
        xdotool key Return
        wait_for step Ready
        [ "$appearance" = light ] && { sleep 2; capture_popover "$out/chat-list.png"; }
        open_chat_in_row 1
        sleep 2
        if [ "$appearance" = light ]; then capture_popover "$out/open-chat.png"; else capture_popover "$out/dark-mode.png"; fi
        xdotool key ctrl+q
        quit_and_expect_success
        for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
        pids=()
        rm -f "$state_file"
    done
    ;;
*)
    fail "unknown scenario $scenario"
    ;;
esac
echo "PASS: $scenario"

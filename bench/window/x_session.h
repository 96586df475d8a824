// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program on an X server, watched from outside: when its window has been painted, and when what
// a key press changed has been. Times are those at which the server's damage reports arrive; no
// time is taken by looking again and again.
#pragma once

#include <sys/types.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tallyforge::bench {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

class XSession {
public:
    /// Connects to the server of DISPLAY. Raises std::runtime_error where it lacks what is needed.
    XSession();
    ~XSession();
    XSession(const XSession&) = delete;
    XSession& operator=(const XSession&) = delete;

    /// Starts the program and waits until its window is painted whole. Time from before the exec.
    Milliseconds start(const std::vector<std::string>& command);
    /// Presses the key that types `keysym` and waits until what it changed is painted. Time from
    /// the press to the last report of it.
    Milliseconds press(std::uint32_t keysym);
    /// Ends the program.
    void stop();

private:
    struct Window {
        std::uint64_t area = 0;
        std::uint64_t painted = 0;
        bool mapped = false;
    };
    /// Waits for the next event, at most `limit`; takes it in. False when none came.
    bool takeEvent(Clock::duration limit);
    void takeDamage(const xcb_damage_notify_event_t& event);
    void watch(xcb_window_t window);
    /// Waits until nothing was painted for `quiet`. Returns the time of the last painting.
    std::optional<Clock::time_point> settle(Clock::duration first, Clock::duration quiet);
    void fake(std::uint8_t type, xcb_keycode_t key);
    [[nodiscard]] xcb_keycode_t keyOf(std::uint32_t keysym) const;

    xcb_connection_t* connection_ = nullptr;
    xcb_window_t root_ = 0;
    std::uint8_t damageEvent_ = 0;
    std::map<std::uint32_t, xcb_keycode_t> keys_;
    std::map<xcb_window_t, Window> windows_;
    std::optional<xcb_window_t> main_;  ///< the window that was painted whole
    Clock::time_point lastPainted_;
    bool paintedSince_ = false;
    pid_t program_ = 0;
};

}  // namespace tallyforge::bench

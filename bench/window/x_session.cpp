// SPDX-License-Identifier: GPL-3.0-or-later
#include "x_session.h"

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xtest.h>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace tallyforge::bench {

namespace {

using namespace std::chrono_literals;

constexpr Clock::duration kStartLimit = 20s;
constexpr Clock::duration kPaintLimit = 2s;
/// Paintings that follow each other closer than this belong to one press.
constexpr Clock::duration kQuiet = 12ms;

struct Freed {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Freed>;

}  // namespace

XSession::XSession() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) {
        xcb_disconnect(connection_);
        throw std::runtime_error("no X server at DISPLAY");
    }
    const xcb_query_extension_reply_t* damage = xcb_get_extension_data(connection_, &xcb_damage_id);
    const xcb_query_extension_reply_t* test = xcb_get_extension_data(connection_, &xcb_test_id);
    if (damage == nullptr || damage->present == 0 || test == nullptr || test->present == 0) {
        xcb_disconnect(connection_);
        throw std::runtime_error("the X server lacks DAMAGE or XTEST");
    }
    damageEvent_ = static_cast<std::uint8_t>(damage->first_event + XCB_DAMAGE_NOTIFY);
    const Owned<xcb_damage_query_version_reply_t> version(
        xcb_damage_query_version_reply(connection_, xcb_damage_query_version(connection_, 1, 1), nullptr));

    const xcb_setup_t* setup = xcb_get_setup(connection_);
    root_ = xcb_setup_roots_iterator(setup).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &events);

    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const Owned<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        connection_, xcb_get_keyboard_mapping(connection_, setup->min_keycode, count), nullptr));
    if (!mapping) {
        xcb_disconnect(connection_);
        throw std::runtime_error("the X server has no keyboard");
    }
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    for (int key = 0; key < count; ++key) {
        keys_.emplace(symbols[key * mapping->keysyms_per_keycode],
                      static_cast<xcb_keycode_t>(setup->min_keycode + key));
    }
}

XSession::~XSession() {
    stop();
    xcb_disconnect(connection_);
}

void XSession::watch(xcb_window_t window) {
    windows_[window] = {};
    xcb_damage_create(connection_, xcb_generate_id(connection_), window, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(connection_);
}

void XSession::takeDamage(const xcb_damage_notify_event_t& event) {
    const auto found = windows_.find(event.drawable);
    if (found == windows_.end() || !found->second.mapped) {
        return;
    }
    found->second.area = std::uint64_t{event.geometry.width} * event.geometry.height;
    found->second.painted += std::uint64_t{event.area.width} * event.area.height;
    lastPainted_ = Clock::now();
    paintedSince_ = true;
    constexpr std::uint64_t kSmallestWindow = 200 * 200;
    if (!main_ && found->second.area >= kSmallestWindow && found->second.painted >= found->second.area) {
        main_ = event.drawable;
    }
}

bool XSession::takeEvent(Clock::duration limit) {
    Owned<xcb_generic_event_t> event(xcb_poll_for_event(connection_));
    if (!event) {
        pollfd waiting{.fd = xcb_get_file_descriptor(connection_), .events = POLLIN, .revents = 0};
        const auto time = std::chrono::duration_cast<std::chrono::nanoseconds>(limit).count();
        const timespec until{.tv_sec = time / 1'000'000'000, .tv_nsec = time % 1'000'000'000};
        if (ppoll(&waiting, 1, &until, nullptr) <= 0) {
            return false;
        }
        event.reset(xcb_poll_for_event(connection_));
        if (!event) {
            return xcb_connection_has_error(connection_) == 0;
        }
    }
    const std::uint8_t type = event->response_type & 0x7F;
    if (type == damageEvent_) {
        takeDamage(*reinterpret_cast<const xcb_damage_notify_event_t*>(event.get()));
    } else if (type == XCB_CREATE_NOTIFY) {
        watch(reinterpret_cast<const xcb_create_notify_event_t*>(event.get())->window);
    } else if (type == XCB_MAP_NOTIFY) {
        windows_[reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window].mapped = true;
    } else if (type == XCB_DESTROY_NOTIFY) {
        windows_.erase(reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get())->window);
    }
    return true;
}

Milliseconds XSession::start(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const std::string& word : command) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    main_.reset();
    const Clock::time_point begin = Clock::now();
    if (posix_spawn(&program_, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0) {
        program_ = 0;
        throw std::runtime_error("cannot start " + command.front());
    }
    while (!main_) {
        if (Clock::now() - begin > kStartLimit || !takeEvent(kStartLimit)) {
            throw std::runtime_error(command.front() + " painted no window");
        }
    }
    const Milliseconds time = lastPainted_ - begin;
    settle(kQuiet, kQuiet);
    // There is no window manager that would hand the window the keyboard.
    xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, *main_, XCB_CURRENT_TIME);
    xcb_flush(connection_);
    constexpr Clock::duration kFocusTime = 200ms;
    settle(kFocusTime, kFocusTime);
    return time;
}

std::optional<Clock::time_point> XSession::settle(Clock::duration first, Clock::duration quiet) {
    paintedSince_ = false;
    Clock::time_point end = Clock::now() + first;
    while (Clock::now() < end && takeEvent(end - Clock::now())) {
        if (paintedSince_) {
            end = lastPainted_ + quiet;
        }
    }
    return paintedSince_ ? std::optional{lastPainted_} : std::nullopt;
}

xcb_keycode_t XSession::keyOf(std::uint32_t keysym) const {
    const auto found = keys_.find(keysym);
    if (found == keys_.end()) {
        throw std::runtime_error("the keyboard lacks a key");
    }
    return found->second;
}

void XSession::fake(std::uint8_t type, xcb_keycode_t key) {
    xcb_test_fake_input(connection_, type, key, XCB_CURRENT_TIME, root_, 0, 0, 0);
    xcb_flush(connection_);
}

Milliseconds XSession::press(std::uint32_t keysym) {
    const xcb_keycode_t key = keyOf(keysym);
    const Clock::time_point begin = Clock::now();
    fake(XCB_KEY_PRESS, key);
    const std::optional<Clock::time_point> end = settle(kPaintLimit, kQuiet);
    fake(XCB_KEY_RELEASE, key);
    settle(kQuiet, kQuiet);
    if (!end) {
        throw std::runtime_error("a key press painted nothing");
    }
    return *end - begin;
}

void XSession::stop() {
    if (program_ == 0) {
        return;
    }
    kill(program_, SIGTERM);
    waitpid(program_, nullptr, 0);
    program_ = 0;
    settle(kQuiet, kQuiet);
    windows_.clear();
}

}  // namespace tallyforge::bench

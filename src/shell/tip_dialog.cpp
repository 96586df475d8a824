// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tip_dialog.h"

#include "dialogs/dialog_support.h"
#include "dialogs/dressing.h"
#include "engine/engine.h"
#include "platform/file_store.h"
#include "platform/installed_file.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr std::size_t kLongestTip = 400;
constexpr std::size_t kLargestTipsFile = std::size_t{16} * 1024 * 1024;
constexpr int kWidth = 5400;
constexpr int kHeight = 3000;
constexpr int kMargin = 180;
constexpr int kKeyWidth = 1400;
constexpr int kKeyHeight = 400;

bool isText(char character) {
    constexpr unsigned char kDelete = 127;
    const auto byte = static_cast<unsigned char>(character);
    return byte >= ' ' && byte != kDelete;
}

}  // namespace

std::vector<std::string> readTips(std::string_view file) {
    std::vector<std::string> tips;
    while (!file.empty()) {
        const auto end = std::min(file.find('\n'), file.size());
        std::string tip = fromUnicode(file.substr(0, std::min(end, kLongestTip)));
        tip.erase(std::remove_if(tip.begin(), tip.end(), [](char c) { return !isText(c); }), tip.end());
        if (tip.find_first_not_of(' ') != tip.npos) {
            tips.push_back(std::move(tip));
        }
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    return tips;
}

TipDialog::TipDialog(Engine& calculator, std::vector<std::string> tips)
    : Form("frmTip", "Tip of the Day"), calc(calculator), tips_(std::move(tips)) {
    constexpr int kIntroduction = 500;
    helpTopic = kIntroduction;
    place.width = kWidth;
    place.height = kHeight;
    const int keysTop = kHeight - kMargin - kKeyHeight;
    const int right = kWidth - kMargin - kKeyWidth;
    dress(lblTipText, ControlKind::Label, "lblTipText", "", {kMargin, kMargin, kWidth - 2 * kMargin, 1700});
    dress(chkLoadTipsAtStartup, ControlKind::Check, "chkLoadTipsAtStartup", "&Show Tips at Startup",
          {kMargin, keysTop - kKeyHeight - 60, kWidth - 2 * kMargin, kKeyHeight});
    dress(cmdNextTip, ControlKind::Key, "cmdNextTip", "&Next Tip",
          {right - kKeyWidth - kMargin, keysTop, kKeyWidth, kKeyHeight});
    dress(cmdOK, ControlKind::Key, "cmdOK", "OK", {right, keysTop, kKeyWidth, kKeyHeight});
    for (Control* control : {&lblTipText, &chkLoadTipsAtStartup, &cmdNextTip, &cmdOK}) {
        enrol(*control);
    }
    defaultKey = &cmdOK;
    cancelKey = &cmdOK;
    setFocus(cmdOK);
    chkLoadTipsAtStartup.checked = calc.platform.readOption(kOption, true);
    chkLoadTipsAtStartup.click = [this] { chkLoadTipsAtStartup_Click(); };
    cmdNextTip.click = [this] { cmdNextTip_Click(); };
    cmdOK.click = [this] { open = false; };
    load = [this] { cmdNextTip_Click(); };
    placing = [this] {
        const DialogPlace beside = PlaceDialog(calc.form.place, calc.platform.metrics(), place.width, place.height);
        place.top = beside.DialogTop;
        place.left = beside.DialogLeft;
    };
}

void TipDialog::cmdNextTip_Click() {
    const auto tip = static_cast<std::size_t>(calc.platform.random() * static_cast<double>(tips_.size()));
    lblTipText.text = tips_.at(std::min(tip, tips_.size() - 1));
}

void TipDialog::chkLoadTipsAtStartup_Click() {
    calc.platform.writeOption(kOption, chkLoadTipsAtStartup.checked);
}

bool showTips(Engine& calc) {
    std::vector<std::string> tips;
    try {
        tips = readTips(readWhole(installedFile(calc.platform, "", TipDialog::kFile), kLargestTipsFile));
    } catch (const FileError&) {
        // Told below, like a file without a tip in it.
    }
    if (tips.empty()) {
        calc.message(BoxKind::Notice, "Tip of the Day",
                     "The file TIPOFDAY.TXT was not found! Make a text file of that name with one tip a line.\n"
                     "Then place it in the same directory as the application. ");
        return calc.platform.readOption(TipDialog::kOption, true);
    }
    TipDialog dialog(calc, std::move(tips));
    calc.platform.showDialog(dialog);
    return dialog.chkLoadTipsAtStartup.checked;
}

}  // namespace tallyforge

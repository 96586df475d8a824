// SPDX-License-Identifier: GPL-3.0-or-later
//
// A dialog of one field and one key, for scripts that go through a dialog.
#pragma once

#include "platform/form.h"

namespace tallyforge {

class SmallDialog : public Form {
public:
    SmallDialog() : Form("frmSmall", "Small") {
        value.name = "txtValue";
        value.kind = ControlKind::Field;
        enrol(value);
        done.name = "cmdDone";
        done.text = "Done";
        done.click = [this] { open = false; };
        enrol(done);
        focus = &value;
        defaultKey = &done;
    }
    Control value, done;
};

}  // namespace tallyforge

// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window while a program runs: it is painted, takes no input, and tells of Break and Close.
#include "desktops/qt/run_watch.h"
#include "window_fixture.h"

namespace tallyforge {
namespace {

class WindowDuringARun : public WindowTest {
protected:
    void post(QObject& target, QEvent* event) { QCoreApplication::postEvent(&target, event); }
    void postKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
        post(*QApplication::focusWidget(), new QKeyEvent(QEvent::KeyPress, key, modifiers, text));
    }

    qt::RunWatch watch;
};

TEST_F(WindowDuringARun, DropsWhatIsTypedAndClicked) {
    postKey(Qt::Key_7, Qt::NoModifier, "7");
    QWidget& key = widget(form().cmdNumPad[5]);
    const QPointF inside = key.rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        post(key,
             new QMouseEvent(type, inside, key.mapToGlobal(inside), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    }
    EXPECT_EQ(watch.letPass(&window), Interruption::None);
    EXPECT_EQ(form().txtXreg.text, "");
    type("7");
    EXPECT_EQ(form().txtXreg.text, "7") << "afterwards input counts again";
}

TEST_F(WindowDuringARun, BreakWithCtrlEndsTheRun) {
    postKey(Qt::Key_Pause);
    EXPECT_EQ(watch.letPass(&window), Interruption::None);
    for (const Qt::Key key : {Qt::Key_Pause, Qt::Key_Cancel}) {
        postKey(key, Qt::ControlModifier);
        EXPECT_EQ(watch.letPass(&window), Interruption::Break);
    }
    // As X11 sends it: without a key, but with its symbol.
    post(*QApplication::focusWidget(), new QKeyEvent(QEvent::KeyPress, 0, Qt::ControlModifier, 127, 0xFF6B, 0));
    EXPECT_EQ(watch.letPass(&window), Interruption::Break);
    EXPECT_EQ(watch.letPass(&window), Interruption::None) << "once told, it is forgotten";
}

TEST_F(WindowDuringARun, TheCloseButtonAsksAndLeavesTheWindowOpen) {
    post(window, new QCloseEvent);
    EXPECT_EQ(watch.letPass(&window), Interruption::Close);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(form().open);
}

TEST_F(WindowDuringARun, ThePaintingGoesOn) {
    form().txtXreg.text = "42";
    view().sync();
    int paints = 0;
    class Counter : public QObject {
    public:
        explicit Counter(int& count) : paints_(count) {}
        bool eventFilter(QObject* /*target*/, QEvent* event) override {
            paints_ += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }

    private:
        int& paints_;
    } counter{paints};
    widget(form().txtXreg).installEventFilter(&counter);
    widget(form().txtXreg).update();
    EXPECT_EQ(watch.letPass(&window), Interruption::None);
    EXPECT_GT(paints, 0);
}

}  // namespace
}  // namespace tallyforge

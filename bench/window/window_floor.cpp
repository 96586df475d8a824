// SPDX-License-Identifier: GPL-3.0-or-later
//
// The least that a window with keys can be: a label that echoes every key press above forty
// buttons. What the calculator takes is measured beside it.
#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace {

class Floor : public QWidget {
public:
    Floor() {
        constexpr int kColumns = 8;
        constexpr int kButtons = 40;
        auto* grid = new QGridLayout(this);
        label_ = new QLabel(this);
        grid->addWidget(label_, 0, 0, 1, kColumns);
        for (int i = 0; i < kButtons; ++i) {
            auto* button = new QPushButton(QString::number(i), this);
            button->setFocusPolicy(Qt::NoFocus);
            grid->addWidget(button, 1 + i / kColumns, i % kColumns);
        }
        setFocusPolicy(Qt::StrongFocus);
        resize(531, 589);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        label_->setText(QString::number(++presses_) + ' ' + QString::number(event->key()));
    }

private:
    QLabel* label_ = nullptr;
    int presses_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Floor window;
    window.show();
    return QApplication::exec();
}

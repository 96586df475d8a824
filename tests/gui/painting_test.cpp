// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/window_fixture.h"

#include <QMenu>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace tallyforge {
namespace {

constexpr std::array<Keypad, 7> kKeypads{Keypad::Standard,  Keypad::Engineering, Keypad::Trigonometry, Keypad::Convert,
                                         Keypad::Magnetics, Keypad::Binary,      Keypad::Tables};

/// Contrast of two colours as the accessibility guidelines for the web define it, 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double left = luminance(one);
    const double right = luminance(other);
    return (std::max(left, right) + 0.05) / (std::min(left, right) + 0.05);
}

QPalette paletteOf(const QColor& window, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

const QPalette kDarkDesktop() {
    return paletteOf(QColor(0x20, 0x20, 0x20), Qt::white);
}
const QPalette kLightDesktop() {
    return paletteOf(QColor(0xF0, 0xF0, 0xF0), Qt::black);
}

/// Paints the control with room around it, and says whether a mark was left outside of its area.
/// Antialiased edges may touch the pixels next to it.
bool paintsOutside(const Control& control, double pixelsPerTwip) {
    constexpr int kRoom = 60;
    const QSizeF size(control.place.width * pixelsPerTwip, control.place.height * pixelsPerTwip);
    const QRectF area(QPointF(kRoom, kRoom), QSizeF(std::round(size.width()), std::round(size.height())));
    QImage image((area.size() + QSizeF(2 * kRoom, 2 * kRoom)).toSize(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    const QRgb untouched = image.pixel(0, 0);
    const qt::Theme theme = qt::Theme::forPalette(kLightDesktop());
    const qt::PaintState state{.pixelsPerTwip = pixelsPerTwip};
    QPainter painter(&image);
    if (control.kind == ControlKind::Key) {
        const double margin = 72.0 * pixelsPerTwip;
        qt::paintKey(painter, area, control,
                     qt::fitCaption(control, area.size() - QSizeF(margin, margin), pixelsPerTwip), theme, state);
    } else if (control.kind == ControlKind::Option) {
        qt::paintOption(painter, area, control, theme, state);
    } else if (control.kind == ControlKind::Field) {
        qt::paintField(painter, area, control, theme, state);
    } else if (control.kind == ControlKind::Label) {
        qt::paintLabel(painter, area, control, qt::shownText(control), theme, state);
    } else if (control.kind == ControlKind::Frame) {
        qt::paintFrame(painter, area, control, theme, state);
    }
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!area.toRect().adjusted(-1, -1, 1, 1).contains(x, y) && image.pixel(x, y) != untouched) {
                return true;
            }
        }
    }
    return false;
}

class WindowPainting : public WindowTest {
protected:
    void TearDown() override { QApplication::setPalette(kLightDesktop()); }

    void expectWhole(const Control& control, const std::string& when) {
        for (const double scale : {0.1, 0.15, 0.2}) {
            if (control.visible && control.place.width > 0 && view().widgetOf(control) != nullptr) {
                EXPECT_FALSE(paintsOutside(control, scale))
                    << control.fullName() << " \"" << control.text << "\" at " << scale << ", " << when;
            }
        }
    }
    void expectFormWhole(const std::string& when) {
        for (const Control* control : form().controls()) {
            expectWhole(*control, when);
        }
    }
};

TEST_F(WindowPainting, ClipsNoCaptionOfAnyKeypadAtAnyScale) {
    std::set<std::string> seen;
    for (const Keypad keypad : kKeypads) {
        engine().keypads().ShowKeypad(keypad);
        for (int mask = 0; mask < 8; ++mask) {
            engine().keypads().PaintModifiers(static_cast<std::uint8_t>(mask));
            for (const Control& key : form().cmdFunctions) {
                if (seen.insert(key.text).second) {
                    expectWhole(key, "keypad " + std::to_string(static_cast<int>(keypad)));
                }
            }
        }
        engine().keypads().RepaintKeypad();
        expectWhole(form().lblBank, "keypad name");
    }
    EXPECT_GT(seen.size(), 100U);
}

TEST_F(WindowPainting, ClipsNothingOfThePlainView) {
    expectFormWhole("plain view");
}

TEST_F(WindowPainting, ClipsNothingOfTheExtendedView) {
    clickOn(form().cmdView);
    for (std::size_t i = 0; i < 12; ++i) {
        form().txtReg_m.at(i).text = "-1.234e-100";
    }
    form().txty_Reg.text = form().txtLastx.text = "-1.234e-100";
    expectFormWhole("extended view");
}

TEST_F(WindowPainting, ShowsTheWidestEntryAndTapeLineWhole) {
    form().txtXreg.text = std::string(22, '8');
    for (const double scale : {0.1, 0.15, 0.2}) {
        EXPECT_FALSE(paintsOutside(form().txtXreg, scale));
        const Control& tape = form().lstDisplayReg;
        const double height = tape.place.height * scale;
        const qt::ListMetrics rows = qt::listMetrics(tape, height, scale);
        const QFont font = qt::listFont(tape, rows, scale);
        const double scrollBar = 130.0 * scale;
        EXPECT_LE(QFontMetricsF(font).horizontalAdvance(QString(23, '8')) + 80.0 * scale + scrollBar,
                  tape.place.width * scale);
        EXPECT_GE(rows.visibleRows, 7U);
    }
}

TEST_F(WindowPainting, KeepsCaptionsLegible) {
    constexpr int kSmallestPixels = 9;
    for (const Keypad keypad : kKeypads) {
        engine().keypads().ShowKeypad(keypad);
        for (int mask = 0; mask < 8; ++mask) {
            engine().keypads().PaintModifiers(static_cast<std::uint8_t>(mask));
            for (const Control& key : form().cmdFunctions) {
                const double side = (key.place.width - 72) * qt::FormView::kUsualScale;
                const qt::FittedCaption caption = qt::fitCaption(key, QSizeF(side, side), qt::FormView::kUsualScale);
                EXPECT_GE(caption.font.pixelSize(), kSmallestPixels)
                    << key.fullName() << " \"" << key.text << "\" of keypad " << static_cast<int>(keypad);
            }
        }
        engine().keypads().RepaintKeypad();
    }
}

TEST_F(WindowPainting, ControlsDoNotOverlap) {
    const auto expectApart = [&](const char* when) {
        const auto& controls = form().controls();
        const auto solid = [&](const Control& control) {
            return control.visible && view().widgetOf(control) != nullptr && control.kind != ControlKind::Frame &&
                   control.kind != ControlKind::Lamp && control.place.width > 0;
        };
        for (auto one = controls.begin(); one != controls.end(); ++one) {
            for (auto other = std::next(one); other != controls.end(); ++other) {
                if (solid(**one) && solid(**other)) {
                    const QRect shared = view().toPixels((*one)->place) & view().toPixels((*other)->place);
                    EXPECT_TRUE(shared.isEmpty())
                        << (*one)->fullName() << " and " << (*other)->fullName() << ", " << when;
                }
            }
            if (solid(**one)) {
                EXPECT_TRUE(view().rect().contains(view().toPixels((*one)->place))) << (*one)->fullName() << when;
            }
        }
    };
    expectApart("plain");
    clickOn(form().cmdView, Qt::AltModifier);
    clickOn(form().cmdView, Qt::ControlModifier);
    ASSERT_TRUE(form().txty_Reg.visible && form().txtLastx.visible);
    expectApart("small fields");
    clickOn(form().cmdView);
    ASSERT_TRUE(form().txtReg_m.front().visible);
    expectApart("extended");
}

TEST_F(WindowPainting, DrawsEveryGlyphOfTheTape) {
    const std::string bytes = "\xF6\xFD\xFB\xE3\xE4\xE2\xF8\xE6\xEA\xED\xE9\xE0";
    const QString glyphs = QString::fromStdString(toUnicode(bytes, Face::Terminal));
    EXPECT_EQ(glyphs, QString::fromUtf8("÷²√πΣΓ°µΩφΘα"));
    const QFontMetricsF metrics(qt::faceFont({.face = Face::Terminal}, 16.0));
    for (const QChar glyph : glyphs) {
        EXPECT_TRUE(metrics.inFont(glyph)) << QString(glyph).toStdString();
        EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(glyph), metrics.horizontalAdvance('0'));
    }
}

TEST_F(WindowPainting, FollowsTheDesktopIntoTheDarkAndBack) {
    const QPoint corner(2, view().height() - 3);
    const auto background = [&] { return view().grab().toImage().pixelColor(corner); };
    QApplication::setPalette(kDarkDesktop());
    QApplication::processEvents();
    EXPECT_LT(background().lightness(), 80);
    const QColor keyInDark = widget(form().cmdNumPad.at(1)).grab().toImage().pixelColor(4, 20);
    EXPECT_LT(keyInDark.lightness(), 110);
    QApplication::setPalette(kLightDesktop());
    QApplication::processEvents();
    EXPECT_GT(background().lightness(), 200);
}

TEST(Theme, KeepsTextLegibleInLightAndDark) {
    constexpr double kLegible = 4.5;
    for (const QPalette& palette : {kLightDesktop(), kDarkDesktop()}) {
        const qt::Theme theme = qt::Theme::forPalette(palette);
        for (const QColor& ground : {theme.window, theme.keyPlain, theme.keyYellow, theme.keyBlue}) {
            EXPECT_GE(contrast(theme.text, ground), kLegible) << ground.name().toStdString();
        }
        for (const QColor& ground : {theme.field, theme.selection}) {
            EXPECT_GE(contrast(theme.fieldText, ground), kLegible) << ground.name().toStdString();
        }
        EXPECT_GE(contrast(theme.lamp, theme.window), 3.0);
    }
}

QPalette withAccent(QPalette palette, const QColor& accent) {
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

TEST(Theme, ChoosesInTheDesktopsAccent) {
    const QColor red(0xB0, 0x10, 0x20);
    for (const QPalette& desktop : {kLightDesktop(), kDarkDesktop()}) {
        for (const QColor& accent : {red, QColor(0x10, 0x70, 0x30), QColor(0xF0, 0xE0, 0x20), QColor(Qt::black)}) {
            const qt::Theme theme = qt::Theme::forPalette(withAccent(desktop, accent));
            EXPECT_GE(contrast(theme.fieldText, theme.selection), 4.5) << accent.name().toStdString();
            EXPECT_GE(contrast(theme.secondary, theme.selection), 4.5) << accent.name().toStdString();
        }
        const QColor chosen = qt::Theme::forPalette(withAccent(desktop, red)).selection;
        EXPECT_GT(chosen.red(), chosen.green() + 15);
        EXPECT_GT(chosen.red(), chosen.blue() + 15);
        EXPECT_EQ(qt::Theme::paletteFor(withAccent(desktop, red)).color(QPalette::Highlight), red);
        // An accent on which its own text is hard to read is not taken.
        EXPECT_NE(qt::Theme::paletteFor(withAccent(desktop, Qt::yellow)).color(QPalette::Highlight), Qt::yellow);
    }
}

TEST(Theme, IsTheDesktopsOwnWhereThatIsOneOfHighContrast) {
    for (const auto& [ground, ink] : {std::pair{Qt::black, Qt::white}, std::pair{Qt::white, Qt::black}}) {
        QPalette desktop = paletteOf(ground, ink);
        desktop.setColor(QPalette::Base, ground);
        desktop.setColor(QPalette::Text, ink);
        const qt::Theme theme = qt::Theme::forPalette(desktop);
        for (const QColor& edge : {theme.keyEdge, theme.fieldEdge, theme.text, theme.secondary, theme.dimText}) {
            EXPECT_EQ(edge, QColor(ink));
        }
        for (const QColor& face : {theme.window, theme.field, theme.keyPlain, theme.keyYellow, theme.keyBlue}) {
            EXPECT_EQ(face, QColor(ground));
        }
        EXPECT_GE(contrast(theme.onAccent, theme.accent), 20.0);
        EXPECT_EQ(qt::Theme::paletteFor(qt::Theme::paletteFor(desktop)), qt::Theme::paletteFor(desktop));
    }
    EXPECT_NE(qt::Theme::forPalette(kDarkDesktop()).keyEdge, QColor(Qt::white));
}

TEST(Theme, KeysAreSeenAgainstTheWindowAndDisabledCaptionsAreRead) {
    for (const QPalette& desktop : {kLightDesktop(), kDarkDesktop()}) {
        const qt::Theme theme = qt::Theme::forPalette(desktop);
        EXPECT_GE(contrast(theme.keyEdge, theme.window), 3.0);
        EXPECT_GE(contrast(theme.fieldEdge, theme.window), 3.0);
        for (const QColor& face : {theme.keyPlain, theme.keyMode, theme.keyOperator, theme.well, theme.window}) {
            EXPECT_GE(contrast(theme.dimText, face), 4.5) << face.name().toStdString();
        }
        EXPECT_GE(contrast(theme.secondary, theme.field), 4.5) << "X at rest";
        EXPECT_GE(contrast(theme.secondary, theme.window), 4.5);
        EXPECT_GE(contrast(theme.onAccent, theme.accent), 4.5) << "Enter";
    }
}

TEST_F(WindowPainting, MenusAndToolTipsTakeTheColoursOfTheWindow) {
    for (const QPalette& desktop : {kDarkDesktop(), kLightDesktop()}) {
        QApplication::setPalette(desktop);
        QApplication::processEvents();
        const qt::Theme theme = qt::Theme::forPalette(desktop);
        EXPECT_EQ(window.menuBar()->palette().color(QPalette::Window), theme.window);
        EXPECT_EQ(window.menuBar()->actions().first()->menu()->palette().color(QPalette::Base), theme.field);
        EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), theme.field);
        EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), theme.fieldText);
    }
}

TEST(Theme, ShowsTheThreeKindsOfKeysApart) {
    for (const QPalette& palette : {kLightDesktop(), kDarkDesktop()}) {
        const qt::Theme theme = qt::Theme::forPalette(palette);
        const std::set<QRgb> faces{theme.keyPlain.rgb(), theme.keyYellow.rgb(), theme.keyBlue.rgb()};
        EXPECT_EQ(faces.size(), 3U);
    }
}

/// Counts how many rows are looked at.
class CountingRows : public ListRows {
public:
    explicit CountingRows(std::size_t count) : count_(count) {}
    [[nodiscard]] std::size_t count() const override { return count_; }
    [[nodiscard]] std::string row(std::size_t index) const override {
        ++read;
        return std::to_string(index);
    }
    [[nodiscard]] std::size_t selected() const override { return count_ - 1; }
    void select(std::size_t /*index*/) override {}
    [[nodiscard]] std::uint64_t revision() const override { return count_; }
    void grow() { ++count_; }
    mutable std::size_t read = 0;

private:
    std::size_t count_;
};

TEST_F(WindowPainting, LooksOnlyAtTheRowsOfAMillionThatItShows) {
    CountingRows rows(1'000'000);
    ListRows* const tape = std::exchange(form().lstDisplayReg.rows, &rows);
    view().sync();
    picture();
    rows.read = 0;
    rows.grow();
    view().sync();
    widget(form().lstDisplayReg).repaint();
    EXPECT_GT(rows.read, 0U);
    EXPECT_LE(rows.read, 10U);
    form().lstDisplayReg.rows = tape;
    view().sync();
}

/// Counts the paint events of all widgets below a window.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QApplication* application) : application_(application) {
        application_->installEventFilter(this);
    }
    ~PaintCounter() override { application_->removeEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            if (const auto* control = qobject_cast<qt::ControlWidget*>(watched); control != nullptr) {
                painted.insert(control->control().fullName());
            }
        }
        return false;
    }
    std::set<std::string> painted;

private:
    QApplication* application_;
};

TEST_F(WindowPainting, PaintsOnlyWhatADigitChanges) {
    type("1");
    QApplication::processEvents();
    PaintCounter counter(qApp);
    press(Qt::Key_2, "2");
    QApplication::processEvents();
    EXPECT_EQ(counter.painted, (std::set<std::string>{"txtXreg", "cmdNumPad(2)"}));
    release(Qt::Key_2, "2");
}

TEST_F(WindowPainting, ScalesWithTheWindow) {
    const QSize plain = widget(form().cmdNumPad.at(1)).size();
    enlarge(2.0);
    const QSize large = widget(form().cmdNumPad.at(1)).size();
    EXPECT_NEAR(large.width(), 2 * plain.width(), 2);
    EXPECT_NEAR(large.height(), 2 * plain.height(), 2);
    window.resize(window.width() + 300, window.height());
    QApplication::processEvents();
    EXPECT_EQ(widget(form().cmdNumPad.at(1)).size(), large) << "the shape is kept in a window too wide for it";
}

}  // namespace
}  // namespace tallyforge

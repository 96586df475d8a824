// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktops/qt/qt_platform.h"

#include "desktops/qt/dialog_window.h"
#include "desktops/qt/main_window.h"
#include "desktops/qt/printing_preview.h"
#include "desktops/qt/theme.h"
#include "help/help_file.h"
#include "platform/dialog_run.h"
#include "platform/installed_file.h"
#include "platform/text.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QSpacerItem>
#include <QStandardPaths>
#include <QSysInfo>
#include <QThread>
#include <QUrl>

#include <utility>

namespace tallyforge::qt {

namespace {

QString unicode(std::string_view text, Face face = Face::Arial) {
    return QString::fromStdString(toUnicode(text, face));
}

QMessageBox::Icon iconOf(BoxKind kind) {
    switch (kind) {
        case BoxKind::Stop:
            return QMessageBox::Critical;
        case BoxKind::Notice:
            return QMessageBox::Warning;
        case BoxKind::Info:
            return QMessageBox::Information;
        case BoxKind::Question:
            return QMessageBox::Question;
        case BoxKind::Plain:
            break;
    }
    return QMessageBox::NoIcon;
}

QSettings settings() {
    return QSettings("Oakhollow", "Tallyforge");
}

QString optionKey(std::string_view key) {
    return "Options/" + QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

/// Where files for other programs are put, as a desktop has it.
QString inDocuments(const QString& name) {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(name);
}

/// A box is as wide as its text; its title shall be read, too.
void widenForTitle(QMessageBox& box) {
    constexpr int kButtonsBeside = 120;
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + kButtonsBeside;
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

}  // namespace

QtPlatform::QtPlatform() : generator_(std::random_device{}()) {}

void QtPlatform::setWindow(MainWindow* window) {
    window_ = window;
    mainWindow_ = window;
}

void QtPlatform::refresh() const {
    if (showChanges) {
        showChanges();
    }
    for (DialogWindow* dialog : dialogs_) {
        dialog->sync();
    }
}

Answer QtPlatform::messageBox(const MessageBox& box) {
    if (standIn_ != nullptr) {
        return standIn_->messageBox(box);
    }
    refresh();
    QMessageBox message(iconOf(box.kind), unicode(box.title), unicode(box.text), QMessageBox::NoButton, window_);
    message.setTextFormat(Qt::PlainText);
    widenForTitle(message);
    switch (box.buttons) {
        case BoxButtons::Ok:
            message.setStandardButtons(QMessageBox::Ok);
            break;
        case BoxButtons::OkCancel:
            message.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
            break;
        case BoxButtons::YesNo:
            message.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            message.setDefaultButton(QMessageBox::No);
            break;
    }
    switch (message.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return box.buttons == BoxButtons::YesNo ? Answer::No : Answer::Ok;
    }
}

std::string QtPlatform::inputBox(const InputBox& box) {
    if (standIn_ != nullptr) {
        return standIn_->inputBox(box);
    }
    refresh();
    if (!box.writes.empty()) {
        // The calculator itself asks before it overwrites a file, as it does on every desktop.
        const QString extension = QString::fromStdString(box.writes);
        return QFileDialog::getSaveFileName(window_, unicode(box.title), inDocuments(unicode(box.preset)),
                                            extension.mid(1).toUpper() + " (*" + extension + ")", nullptr,
                                            QFileDialog::DontConfirmOverwrite)
            .toStdString();
    }
    QInputDialog input(window_);
    input.setWindowTitle(unicode(box.title));
    input.setLabelText(unicode(box.prompt));
    if (!box.offers.empty()) {
        QStringList names;
        for (const std::string& name : box.offers) {
            names.append(QString::fromStdString(name));
        }
        input.setComboBoxItems(names);
        input.setComboBoxEditable(true);
    }
    input.setTextValue(unicode(box.preset));
    if (auto* prompt = input.findChild<QLabel*>()) {
        constexpr int kReadableWidth = 420;
        prompt->setWordWrap(true);
        prompt->setMinimumWidth(kReadableWidth);
    }
    const bool accepted = input.exec() == QDialog::Accepted;
    const std::string entered = accepted ? input.textValue().toStdString() : std::string{};
    return box.fileName ? entered : fromUnicode(entered);
}

void QtPlatform::showDialog(Form& dialog) {
    if (standIn_ != nullptr) {
        return standIn_->showDialog(dialog);
    }
    if (beforeDialog) {
        beforeDialog();
    }
    refresh();
    runDialog(*this, dialog, [&] { runWindowOf(dialog); });
}

void QtPlatform::runWindowOf(Form& dialog) {
    DialogWindow window(dialog, decimalCharacter(), mainWindow_, window_);
    // What opens while the dialog is open, stands over it.
    QWidget* const below = std::exchange(window_, &window);
    dialogs_.push_back(&window);
    window.run();
    dialogs_.pop_back();
    window_ = below;
}

DesktopMetrics QtPlatform::metrics() const {
    DesktopMetrics metrics;
    // Qt scales for high densities by itself, so the calculator always sees the usual one.
    if (const QScreen* screen = QGuiApplication::primaryScreen(); screen != nullptr) {
        constexpr int kTwipsPerPixel = 15;
        metrics.screenWidth = screen->size().width() * kTwipsPerPixel;
        metrics.screenHeight = screen->size().height() * kTwipsPerPixel;
    }
    return metrics;
}

char QtPlatform::decimalCharacter() const {
    return QLocale().decimalPoint() == "," ? ',' : '.';
}

std::filesystem::path QtPlatform::dataFolder() const {
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    std::filesystem::path folder = base.toStdString();
    if (folder.is_relative()) {
        // A relative XDG_DATA_HOME is to be ignored.
        folder = std::filesystem::path(QDir::homePath().toStdString()) / ".local" / "share";
    }
    return folder / "Oakhollow" / "Tallyforge";
}

std::filesystem::path QtPlatform::installedFolder() const {
    return QApplication::applicationDirPath().toStdString();
}

bool QtPlatform::readOption(std::string_view key, bool preset) const {
    return settings().value(optionKey(key), preset).toBool();
}

bool QtPlatform::hasOption(std::string_view key) const {
    return settings().contains(optionKey(key));
}

void QtPlatform::writeOption(std::string_view key, bool value) {
    settings().setValue(optionKey(key), value);
}

std::string QtPlatform::clipboardText() const {
    if (standIn_ != nullptr) {
        return standIn_->clipboardText();
    }
    const QString text = QGuiApplication::clipboard()->text();
    constexpr auto kLongest = static_cast<qsizetype>(kLongestClipping);
    return fromUnicode((text.size() <= kLongest ? text : text.left(kLongest) + "...").toStdString());
}

void QtPlatform::setClipboardText(std::string_view text) {
    if (standIn_ != nullptr) {
        return standIn_->setClipboardText(text);
    }
    QGuiApplication::clipboard()->setText(unicode(text));
}

void QtPlatform::print(const PrintJob& job) {
    if (standIn_ != nullptr) {
        return standIn_->print(job);
    }
    refresh();
    PrintPreview preview(job, window_);
    preview.pdfName = inDocuments("Tallyforge.pdf");
    preview.exec();
}

std::string QtPlatform::shortDate(const LocalTime& day) const {
    return fromUnicode(QLocale().toString(QDate(day.year, day.month, day.day), QLocale::ShortFormat).toStdString());
}

void QtPlatform::playSound(std::span<const std::uint8_t> /*wave*/) {
    if (standIn_ == nullptr) {
        QApplication::beep();
    }
}

// The pages that the calculator opens came with it.
void QtPlatform::openUrl(std::string_view url) {
    if (standIn_ != nullptr) {
        return standIn_->openUrl(url);
    }
    const std::filesystem::path page = installedFile(*this, "doc", url);
    std::error_code error;
    const bool there = std::filesystem::is_regular_file(page, error);
    if (!there || !QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(page.string())))) {
        tell("Oakhollow", "The page " + std::string(url) + (there ? " cannot be opened!" : " was not found!"));
    }
}

void QtPlatform::openFolder(const std::filesystem::path& folder) {
    if (standIn_ == nullptr) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(folder.string())));
    }
}

void QtPlatform::tell(std::string_view title, const std::string& text) {
    messageBox({.kind = BoxKind::Notice, .title = std::string(title), .text = text});
}

std::filesystem::path QtPlatform::helpFile() const {
    return installedFile(*this, "", kHelpFile);
}

void QtPlatform::helpTopic(int topic) {
    if (standIn_ != nullptr) {
        return standIn_->helpTopic(topic);
    }
    if (const std::string problem = help.showTopic(helpFile(), topic); !problem.empty()) {
        tell("Help", problem);
    }
}

void QtPlatform::helpDialog(std::string_view form, int topic) {
    if (standIn_ != nullptr) {
        return standIn_->helpDialog(form, topic);
    }
    if (const std::string problem = help.showDialog(helpFile(), form, topic); !problem.empty()) {
        tell("Help", problem);
    }
}

std::string QtPlatform::systemInformation() const {
    const QString text = QString("System: %1, %2\nQt: %3, window system: %4\n")
                             .arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture(), qVersion(),
                                  QGuiApplication::platformName());
    return fromUnicode(text.toStdString());
}

LocalTime QtPlatform::now() const {
    const QDateTime time = QDateTime::currentDateTime();
    return {.year = time.date().year(),
            .month = time.date().month(),
            .day = time.date().day(),
            .hour = time.time().hour(),
            .minute = time.time().minute(),
            .second = time.time().second()};
}

double QtPlatform::random() {
    return std::uniform_real_distribution<double>(0.0, 1.0)(generator_);
}

void QtPlatform::sleep(std::chrono::milliseconds time) {
    QThread::msleep(static_cast<unsigned long>(time.count()));
}

Interruption QtPlatform::breathe() {
    refresh();
    return runWatch_.letPass(window_);
}

}  // namespace tallyforge::qt

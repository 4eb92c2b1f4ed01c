// Makes the pictures of the dialogs: wxbrg_screenshots LANGUAGE FOLDER, for one language library.

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <stdexcept>

#include "options/MessageTexts.h"
#include "options/frmExportOptions.h"
#include "platform/posix/DlLanguageLibraries.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/ProgramLocation.h"
#include "platform/qt/HelpWindow.h"
#include "platform/qt/QtFileDialog.h"
#include "platform/qt/QtHelpViewer.h"
#include "platform/qt/QtMessageBox.h"
#include "platform/qt/QtOptionsFormView.h"
#include "platform/qt/Session.h"
#include "platform/scripted/FixedClock.h"
#include "platform/scripted/MemoryFileSystem.h"
#include "platform/scripted/MemoryProfileStore.h"
#include "platform/scripted/NoProgress.h"
#include "platform/scripted/PlainUserLocale.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg {
namespace {

constexpr int settlingTime = 200;  // milliseconds

/// Lets a dialog open, and acts on it then.
void Later(const std::function<void()>& act) {
    QTimer::singleShot(settlingTime, act);
}

template <class Window>
Window& Shown() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* const window = dynamic_cast<Window*>(widget); window != nullptr && window->isVisible())
            return *window;
    throw std::runtime_error("a window that was to be shown is not there");
}

/// The colours that fill most of a picture, as many as fit into a picture of 8 bits.
QList<QRgb> MainColours(const QImage& picture) {
    constexpr qsizetype most = 256;
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(), [&counts](QRgb a, QRgb b) {
        return counts[a] != counts[b] ? counts[a] > counts[b] : a < b;
    });
    return colours.mid(0, most);
}

class Photographer {
  public:
    Photographer(std::string language, const std::string& folder)
        : language_(std::move(language)), folder_(QString::fromStdString(folder)) {}

    /// A picture of a window, as small a file as it can be, for the repository keeps it.
    void Take(QWidget& window, const QString& subject) const {
        QApplication::processEvents();
        const QString name = folder_ + "/" + subject + "-" + QString::fromStdString(language_) + ".png";
        const QImage whole = window.grab().toImage();
        const QImage picture = whole.convertToFormat(QImage::Format_Indexed8, MainColours(whole),
                                                     Qt::ThresholdDither | Qt::AvoidDither);
        if (!picture.save(name, "PNG", 0)) throw std::runtime_error("cannot write " + name.toStdString());
    }

  private:
    std::string language_;
    QString folder_;
};

void PhotographHelp(const Photographer& photographer) {
    auto& help = Shown<HelpWindow>();
    help.ShowPage(50018);
    photographer.Take(help, "help");
    help.close();
}

void PhotographQuestion(const Photographer& photographer) {
    auto& box = Shown<QMessageBox>();
    photographer.Take(box, "question");
    box.button(QMessageBox::No)->click();
}

/// Goes through the pages, asks for help, and cancels without meaning it.
void UseForm(const Photographer& photographer) {
    QWidget& form = *QApplication::activeModalWidget();
    auto* const tabs = form.findChild<QTabWidget*>();
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        photographer.Take(form, "options-" + QString::number(page + 1));
    }
    form.findChild<QPushButton*>("cmdHelp")->click();
    Later([&] {
        PhotographHelp(photographer);
        Later([&] {
            PhotographQuestion(photographer);
        });
        form.findChild<QPushButton*>("cmdCancel")->click();
        form.close();
    });
}

void UseFileDialog(const Photographer& photographer) {
    auto& dialog = Shown<QFileDialog>();
    dialog.setDirectory(dialog.directory());
    photographer.Take(dialog, "file");
    dialog.reject();
}

/// A folder that looks the same in every picture.
std::string PrepareFolder(const QString& folder) {
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    const QDateTime written(QDate(2026, 11, 20), QTime(9, 30));
    for (const char* name : {"claims.wpx", "order-processing.wpx", "purchase.wpx"}) {
        QFile file(folder + "/" + name);
        const bool ready = file.open(QIODevice::WriteOnly) && file.resize(20480) &&
                           file.setFileTime(written, QFileDevice::FileModificationTime);
        if (!ready) throw std::runtime_error("cannot write the example files");
    }
    return folder.toStdString();
}

void PhotographAll(const std::string& language, const Photographer& photographer) {
    const std::string directory = RunningProgram().directory;
    MemoryProfileStore store;
    store.Put(ProfileScope::user, programKey, languageValue, language);
    store.Put(ProfileScope::user, toolIntegrationKey, "OutputPath",
              PrepareFolder(QDir::tempPath() + "/exports"));
    store.Put(ProfileScope::user, toolIntegrationKey, "OutputFileName", std::string("order-processing.wpx"));
    DlLanguageLibraries libraries(directory);
    IconvCodePage codePage(65001);
    FixedClock clock(LocalTime{2026, 11, 21, 6, 12, 0, 0});
    PlainUserLocale userLocale;
    MemoryFileSystem files;
    QtMessageBox messageBox(language);
    QtFileDialog fileDialog(language);
    QtOptionsFormView optionsFormView(language);
    QtHelpViewer helpViewer(language, directory);
    NoProgress progress;
    Platform platform{store,      libraries,       codePage,   clock,    userLocale, files,  messageBox,
                      fileDialog, optionsFormView, helpViewer, progress, directory,  "wxbrg"};
    gBlock.gPlatform = &platform;
    if (!LoadLocalizedResources()) throw std::runtime_error("there is no language library " + language);
    gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
    gBlock.gIOHandler = gBlock.gPool.Create<clsIOHandler>();
    Later([&] {
        UseForm(photographer);
    });
    frmExportOptions().ShowModal();
    Later([&] {
        UseFileDialog(photographer);
        Later([] {
            Shown<QMessageBox>().button(QMessageBox::Yes)->click();
        });
    });
    try {
        gBlock.gIOHandler->FileSelectDialog();
    } catch (const RunEnd&) {
        RenewGlobals();
    }
}

}  // namespace
}  // namespace wxbrg

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: wxbrg_screenshots LANGUAGE FOLDER\n";
        return 2;
    }
    try {
        wxbrg::OpenSession(argv[1]);
        wxbrg::PhotographAll(argv[1], wxbrg::Photographer(argv[1], argv[2]));
    } catch (const std::exception& error) {
        std::cerr << "wxbrg_screenshots: " << error.what() << '\n';
        return 1;
    }
    return 0;
}

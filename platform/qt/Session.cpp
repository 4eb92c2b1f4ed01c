#include "platform/qt/Session.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <clocale>
#include <map>
#include <memory>

namespace wxbrg {

namespace {

/// What the application object takes as its command line, and refers to as long as it lives.
int argumentCount = 1;
char programName[] = "wxbrg";
char* arguments[] = {programName, nullptr};

/// Puts the C library's locale back, which the application object sets to the user's: what the run writes
/// must not depend on it.
class KeptLocale {
  public:
    KeptLocale() : locale_(std::setlocale(LC_ALL, nullptr)) {}
    ~KeptLocale() { std::setlocale(LC_ALL, locale_.c_str()); }
    KeptLocale(const KeptLocale&) = delete;
    KeptLocale& operator=(const KeptLocale&) = delete;

  private:
    std::string locale_;
};

std::unique_ptr<QApplication> MakeApplication() {
    const KeptLocale kept;
    return std::make_unique<QApplication>(argumentCount, arguments);
}

QLocale LocaleOf(const std::string& tag) {
    static const std::map<std::string, QLocale::Language> languages{{"ENU", QLocale::English},
                                                                    {"DEU", QLocale::German}};
    const auto language = languages.find(tag);
    return language == languages.end() ? QLocale() : QLocale(language->second);
}

/// The application object with what belongs to it.
class Session {
  public:
    explicit Session(const std::string& tag) : application_(MakeApplication()) {
        QApplication::setApplicationName(programName);
        QGuiApplication::setDesktopFileName(programName);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QIcon icon;
        icon.addFile(":/packaging/wxbrg-64.png");
        icon.addFile(":/packaging/wxbrg-256.png");
        QGuiApplication::setWindowIcon(icon);
        if (words_.load(LocaleOf(tag), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QApplication::installTranslator(&words_);
    }

  private:
    std::unique_ptr<QApplication> application_;
    QTranslator words_;
};

}  // namespace

void OpenSession(const std::string& tag) {
    // The run has a thread of its own, and the application object has to go where it came.
    thread_local std::unique_ptr<Session> session;
    if (QCoreApplication::instance() == nullptr) session = std::make_unique<Session>(tag);
}

void ProbeDisplay() {
    MakeApplication();
}

}  // namespace wxbrg

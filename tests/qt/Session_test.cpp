#include "platform/qt/Session.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

namespace wxbrg {
namespace {

TEST(Session, LeavesTheLocaleOfTheCLibraryAsItIs) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    OpenSession("ENU");
    EXPECT_NE(qApp, nullptr);
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

TEST(Session, IsOpenedOnce) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    OpenSession("ENU");
    const auto* const application = QCoreApplication::instance();
    OpenSession("DEU");
    EXPECT_EQ(QCoreApplication::instance(), application);
    EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
}

}  // namespace
}  // namespace wxbrg

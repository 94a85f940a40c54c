// Runs the tests that drive real widgets.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>

#include "kit/look/style.h"
#include "support/memory.h"

namespace {

// Nothing of the user's desktop, language or settings may reach a test.
void isolate(const QTemporaryDir& settings) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    qputenv("XDG_CACHE_HOME", settings.path().toUtf8());
    qputenv("XDG_DATA_HOME", settings.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", settings.path().toUtf8());
    QLocale::setDefault(QLocale::c());
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    tessaro::test::useMemoryForTemporaryFiles();
    const QTemporaryDir settings;
    isolate(settings);
    QApplication application(argc, argv);
    tessaro::applyProgramStyle(application);
    return RUN_ALL_TESTS();
}

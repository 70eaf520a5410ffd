#pragma once

#include <QtTest>

/// Keeps a test away from the user's own files: while it lives, settings, data and the current
/// directory are in a temporary directory, which starts empty. One for each test program.
class TestHome
{
public:
    TestHome();
    /// An absolute path in the directory.
    QString path(const QString &name) const { return m_directory.filePath(name); }
    /// Forgets all settings.
    static void clearSettings();

private:
    QTemporaryDir m_directory;
};

/// The home of the test program that GUI_TEST_MAIN made.
TestHome &testHome();

int runGuiTest(int argc, char **argv, const std::function<QObject *()> &makeTest);

/// In place of QTEST_MAIN for tests of windows.
#define GUI_TEST_MAIN(TestClass)                                                                   \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return runGuiTest(argc, argv, [] { return new TestClass; });                               \
    }

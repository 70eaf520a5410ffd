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

/// The home of the program that runs.
TestHome &testHome();

#pragma once

#include <QApplication>

/// The program as Qt sees it; a local object of main() that outlives everything else.
class KWApplication : public QApplication
{
    Q_OBJECT

public:
    KWApplication(int &argc, char **argv);
};

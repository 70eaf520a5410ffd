#pragma once

#include <QObject>

class KWFileCommands;
class KWMainWindow;
class KWPanes;

/// The commands that write what the panes show to files of other programs.
class KWExportCommands : public QObject
{
    Q_OBJECT

public:
    /// None of the pointers is owned.
    KWExportCommands(QObject *parent, KWMainWindow *window, KWPanes *panes,
                     const KWFileCommands *files);

    /// Writes the floor plan as a picture of the kind that the file's extension names. What went
    /// wrong, in words for the user; empty if nothing did.
    QString exportFloorPlan(const QString &path);

public slots:
    void fileExportFloorPlan();

protected:
    virtual QPixmap floorPlanPicture();
    virtual QImage toImage(const QPixmap &picture);

private:
    /// Empty if the user does not want to go on.
    QString askImageFile();

    KWMainWindow *m_window;
    KWPanes *m_panes;
    const KWFileCommands *m_files;
};

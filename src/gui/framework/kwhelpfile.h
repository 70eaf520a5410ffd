#pragma once

#include "gui/framework/kwhelpcontents.h"

#include <QByteArray>

#include <memory>
#include <optional>

/// A compiled help file (.chm), read into memory when this is made; the file may vanish or change
/// afterwards. Whatever stands in the file, at worst there is nothing in this: a damaged file, or
/// one made to do harm, has no objects or only some.
class KWHelpFile
{
public:
    explicit KWHelpFile(const QString &path);
    ~KWHelpFile();
    KWHelpFile(const KWHelpFile &) = delete;
    KWHelpFile &operator=(const KWHelpFile &) = delete;

    const QString &path() const { return m_path; }
    /// False if the file is missing or is no help file.
    bool isOpen() const;
    /// `name` is the path of a page, picture or the like in the file, without a slash at its start;
    /// capitals do not matter.
    bool contains(const QString &name) const;
    /// Nothing if there is no such object, if it is damaged or greater than maxObjectSize.
    std::optional<QByteArray> object(const QString &name) const;
    /// The table of contents; empty if there is none.
    QList<KWHelpEntry> contents() const;

    static constexpr qint64 maxFileSize = 16LL * 1024 * 1024;
    static constexpr qint64 maxObjectSize = 8LL * 1024 * 1024;
    /// Of more, the rest is passed over.
    static constexpr int maxObjects = 10'000;

private:
    class Archive;

    QString m_path;
    std::unique_ptr<Archive> m_archive;
};

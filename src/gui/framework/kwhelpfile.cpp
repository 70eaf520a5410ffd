#include "gui/framework/kwhelpfile.h"

#include <QFile>
#include <QMap>

#include <mspack.h>

#include <cstdlib>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

/// Objects lie one behind the other in one compressed stream, which is unpacked from its start or
/// from a mark on the way. No help needs more than this, and a small file can claim any size.
constexpr off_t maxStreamSize = 64LL * 1024 * 1024;

/// A reading or writing position in memory, as a file of libmspack.
struct MemoryFile : mspack_file
{
    /// What is read; null while writing.
    const QByteArray *source = nullptr;
    QByteArray *target = nullptr;
    off_t position = 0;
};

MemoryFile *memoryFile(mspack_file *file)
{
    return static_cast<MemoryFile *>(file);
}

/// Lets libmspack read and write in memory instead of in files.
struct MemorySystem : mspack_system
{
    MemorySystem();

    QByteArray source;
    /// What the next file opened for writing fills.
    QByteArray *target = nullptr;
};

mspack_file *openFile(mspack_system *self, const char *, int mode)
{
    auto *system = static_cast<MemorySystem *>(self);
    auto *file = new MemoryFile;
    if (mode == MSPACK_SYS_OPEN_READ)
        file->source = &system->source;
    else
        file->target = system->target;
    return file;
}

void closeFile(mspack_file *file)
{
    delete memoryFile(file);
}

int readFile(mspack_file *file, void *buffer, int bytes)
{
    MemoryFile *from = memoryFile(file);
    if (!from->source || bytes < 0)
        return -1;
    const qsizetype left = std::max<qsizetype>(0, from->source->size() - from->position);
    const qsizetype size = std::min<qsizetype>(bytes, left);
    if (size > 0)
        std::memcpy(buffer, from->source->constData() + from->position, size);
    from->position += size;
    return static_cast<int>(size);
}

int writeFile(mspack_file *file, void *buffer, int bytes)
{
    MemoryFile *to = memoryFile(file);
    if (!to->target || bytes < 0 || to->target->size() + bytes > KWHelpFile::maxObjectSize)
        return -1;
    to->target->append(static_cast<const char *>(buffer), bytes);
    return bytes;
}

int seekFile(mspack_file *file, off_t offset, int mode)
{
    MemoryFile *in = memoryFile(file);
    const off_t size = in->source ? in->source->size() : in->target->size();
    const off_t base = mode == MSPACK_SYS_SEEK_START ? 0
                       : mode == MSPACK_SYS_SEEK_CUR ? in->position
                                                     : size;
    if (offset < -base || offset > size - base)
        return -1;
    in->position = base + offset;
    return 0;
}

off_t tellFile(mspack_file *file)
{
    return memoryFile(file)->position;
}

void ignoreMessage(mspack_file *, const char *, ...) {}

void *allocate(mspack_system *, size_t bytes)
{
    return std::malloc(bytes);
}

void copyMemory(void *from, void *to, size_t bytes)
{
    std::memcpy(to, from, bytes);
}

MemorySystem::MemorySystem()
    : mspack_system{openFile,      closeFile, readFile,  writeFile,  seekFile, tellFile,
                    ignoreMessage, allocate,  std::free, copyMemory, nullptr}
{
}

/// The file as libmspack wants it; empty if it cannot be read or is too large.
QByteArray readWholeFile(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes = file.read(KWHelpFile::maxFileSize + 1);
    if (bytes.size() > KWHelpFile::maxFileSize)
        return {};
    // The head names two formats that differ in one bit. chmcmd writes the first name twice, which
    // libmspack does not accept.
    constexpr qsizetype firstName = 0x18;
    constexpr qsizetype secondName = 0x28;
    if (bytes.size() > secondName && bytes[secondName] == bytes[firstName])
        bytes[secondName] = static_cast<char>(bytes[firstName] | 1);
    return bytes;
}

QString key(const QString &name)
{
    return name.toLower();
}
} // namespace

class KWHelpFile::Archive
{
public:
    explicit Archive(const QString &path)
    {
        m_system.source = readWholeFile(path);
        int unfit = MSPACK_ERR_OK;
        MSPACK_SYS_SELFTEST(unfit);
        if (unfit || m_system.source.isEmpty())
            return;
        m_decompressor = mspack_create_chm_decompressor(&m_system);
        if (m_decompressor)
            m_header = m_decompressor->open(m_decompressor, "");
        if (!m_header)
            return;
        for (mschmd_file *file = m_header->files; file && m_files.size() < maxObjects;
             file = file->next) {
            const QString name = QString::fromUtf8(file->filename);
            m_files.insert(key(name.startsWith(u'/') ? name.sliced(1) : name), file);
        }
    }

    ~Archive()
    {
        if (m_header)
            m_decompressor->close(m_decompressor, m_header);
        if (m_decompressor)
            mspack_destroy_chm_decompressor(m_decompressor);
    }

    Archive(const Archive &) = delete;
    Archive &operator=(const Archive &) = delete;

    bool isOpen() const { return m_header; }
    bool contains(const QString &name) const { return m_files.contains(key(name)); }

    std::optional<QByteArray> object(const QString &name)
    {
        mschmd_file *file = m_files.value(key(name));
        if (!file || file->length < 0 || file->length > maxObjectSize || file->offset < 0 ||
            file->offset > maxStreamSize)
            return std::nullopt;
        QByteArray bytes;
        m_system.target = &bytes;
        const int error = m_decompressor->extract(m_decompressor, file, "");
        m_system.target = nullptr;
        if (error || bytes.size() != file->length)
            return std::nullopt;
        return bytes;
    }

    QString contentsName() const
    {
        for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
            if (file.key().endsWith(".hhc"_L1))
                return file.key();
        }
        return {};
    }

private:
    MemorySystem m_system;
    mschm_decompressor *m_decompressor = nullptr;
    mschmd_header *m_header = nullptr;
    QMap<QString, mschmd_file *> m_files;
};

KWHelpFile::KWHelpFile(const QString &path)
    : m_path(path)
    , m_archive(std::make_unique<Archive>(path))
{
}

KWHelpFile::~KWHelpFile() = default;

bool KWHelpFile::isOpen() const
{
    return m_archive->isOpen();
}

bool KWHelpFile::contains(const QString &name) const
{
    return m_archive->contains(name);
}

std::optional<QByteArray> KWHelpFile::object(const QString &name) const
{
    return m_archive->object(name);
}

QList<KWHelpEntry> KWHelpFile::contents() const
{
    const std::optional<QByteArray> hhc = m_archive->object(m_archive->contentsName());
    return hhc ? parseHelpContents(*hhc) : QList<KWHelpEntry>();
}

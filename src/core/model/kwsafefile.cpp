#include "core/model/kwsafefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <tuple>
#include <unistd.h>

namespace {
namespace fs = std::filesystem;
using Status = struct stat;

QString reasonOf(int systemError)
{
    return QString::fromLocal8Bit(std::strerror(systemError));
}

QString noRegularFile()
{
    return QStringLiteral("Not a regular file");
}

Status statusOf(int file)
{
    Status status{};
    ::fstat(file, &status);
    return status;
}

/// An open file of the system's, without what the toolkit does to it.
class Descriptor
{
public:
    /// Never waits for somebody at the other end.
    Descriptor(const fs::path &path, int flags)
        : m_number(::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY))
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};

fs::path toPath(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

/// What the program was given by whoever started it. A new file would take it from them.
bool isOwnStream(const fs::path &path)
{
    const std::string name = path.lexically_normal().string();
    return name == "/dev/stdout" || name == "/dev/stderr" || name.starts_with("/dev/fd/") ||
           name.starts_with("/proc/");
}

/// The end of a chain of links, which need not exist.
fs::path followed(fs::path path)
{
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int links = 0; links < mostLinks && !isOwnStream(path) && fs::is_symlink(path, error);
         ++links)
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

bool isSame(const Status &file, const fs::path &path)
{
    Status other{};
    return ::stat(path.c_str(), &other) == 0 && other.st_dev == file.st_dev &&
           other.st_ino == file.st_ino;
}

/// 0 or an error of the system's.
int writeAll(int file, const QByteArray &content)
{
    for (qsizetype done = 0; done < content.size();) {
        const ssize_t written =
            ::write(file, content.constData() + done, std::size_t(content.size() - done));
        if (written < 0 && errno != EINTR)
            return errno;
        if (written > 0)
            done += written;
    }
    return 0;
}

/// Makes sure that a file can take a content; 0 or an error of the system's. A file system that
/// cannot promise it is believed.
int setSpaceAside(int file, const QByteArray &content)
{
    const int error = content.isEmpty() ? 0 : ::posix_fallocate(file, 0, content.size());
    const bool isShort = error == ENOSPC || error == EDQUOT || error == EFBIG || error == EIO;
    return isShort ? error : 0;
}

/// 0 or an error of the system's.
int writeToStream(const fs::path &path, const QByteArray &content)
{
    // What is behind /dev/stdout may have been opened for appending.
    const Descriptor stream(path, O_WRONLY | O_APPEND);
    if (!stream.isOpen())
        return errno;
    ::fcntl(stream.number(), F_SETFL, ::fcntl(stream.number(), F_GETFL) & ~O_NONBLOCK);
    return writeAll(stream.number(), content);
}

/// 0 or an error of the system's. What is too short is noticed before anything is lost.
int writeOver(int file, const QByteArray &content)
{
    const off_t before = statusOf(file).st_size;
    if (const int error = setSpaceAside(file, content)) {
        std::ignore = ::ftruncate(file, before);
        return error;
    }
    if (const int error = writeAll(file, content))
        return error;
    return ::ftruncate(file, content.size()) == 0 && ::fsync(file) == 0 ? 0 : errno;
}

bool setOwner(int file, int like)
{
    const Status now = statusOf(file);
    const Status wanted = statusOf(like);
    return (now.st_uid == wanted.st_uid && now.st_gid == wanted.st_gid) ||
           ::fchown(file, wanted.st_uid, wanted.st_gid) == 0;
}

/// Who may do what with a file: its mode, and the list of further users and groups.
bool setPermissions(int file, int like)
{
    constexpr mode_t bits = 07777;
    constexpr const char *list = "system.posix_acl_access";
    const mode_t wanted = statusOf(like).st_mode & bits;
    if ((statusOf(file).st_mode & bits) != wanted && ::fchmod(file, wanted) != 0)
        return false;
    const ssize_t size = ::fgetxattr(like, list, nullptr, 0);
    if (size <= 0)
        return ::fgetxattr(file, list, nullptr, 0) <= 0 || ::fremovexattr(file, list) == 0;
    QByteArray entries(size, '\0');
    return ::fgetxattr(like, list, entries.data(), std::size_t(size)) == size &&
           ::fsetxattr(file, list, entries.constData(), std::size_t(size), 0) == 0;
}

constexpr int nothing = -1;
enum class Owner { Kept, KeptIfAllowed };
enum class Outcome { Done, Failed, NotAllowed };

/// Makes a new file and puts it in its place, if that is allowed. It looks like another open file
/// or, like `nothing`, as the system makes it.
Outcome putInPlace(const fs::path &path, const QByteArray &content, int like, Owner owner,
                   QString &error)
{
    QSaveFile file(QFile::decodeName(path.c_str()));
    const auto ended = [&](Outcome outcome, const QString &reason) {
        error = reason;
        return outcome;
    };
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return ended(Outcome::NotAllowed, file.errorString());
    const int number = file.handle();
    if (like != nothing && !setOwner(number, like)) {
        if (owner == Owner::Kept)
            return ended(Outcome::NotAllowed, reasonOf(errno));
        // Colleagues may be allowed to read it as members of the group.
        std::ignore = ::fchown(number, uid_t(-1), statusOf(like).st_gid);
    }
    // After the owner, whose change takes permissions away.
    if (like != nothing && !setPermissions(number, like))
        return ended(Outcome::NotAllowed, reasonOf(errno));
    if (const int shortage = setSpaceAside(number, content))
        return ended(Outcome::Failed, reasonOf(shortage));
    if (const int broken = writeAll(number, content))
        return ended(Outcome::Failed, reasonOf(broken));
    return file.commit() ? Outcome::Done : ended(Outcome::NotAllowed, file.errorString());
}

/// As replaceFile(); the result looks like the `original` or, like `nothing`, like the old file.
bool replace(const QString &name, const QByteArray &content, int original, QString &error)
{
    const auto ended = [&](int number) {
        if (number != 0)
            error = reasonOf(number);
        return number == 0;
    };
    const fs::path path = followed(toPath(name));
    if (isOwnStream(path))
        return ended(writeToStream(path, content));
    Status old{};
    if (::stat(path.c_str(), &old) != 0)
        return errno == ENOENT ? putInPlace(path, content, original, Owner::KeptIfAllowed, error) ==
                                     Outcome::Done
                               : ended(errno);
    if (S_ISCHR(old.st_mode))
        return ended(writeToStream(path, content));
    if (S_ISDIR(old.st_mode))
        return ended(EISDIR);
    if (!S_ISREG(old.st_mode)) {
        error = noRegularFile();
        return false;
    }
    const Descriptor file(path, O_WRONLY);
    if (!file.isOpen())
        return ended(errno);
    const bool isCopy = original != nothing;
    const Outcome outcome = putInPlace(path, content, isCopy ? original : file.number(),
                                       isCopy ? Owner::KeptIfAllowed : Owner::Kept, error);
    if (outcome != Outcome::NotAllowed)
        return outcome == Outcome::Done;
    if (isCopy && !setPermissions(file.number(), original))
        return ended(errno);
    return ended(writeOver(file.number(), content));
}
} // namespace

bool replaceFile(const QString &path, const QByteArray &content, QString *error)
{
    QString reason;
    return replace(path, content, nothing, error ? *error : reason);
}

bool copyFile(const QString &from, const QString &to, QString *error)
{
    QString unread;
    QString &reason = error ? *error : unread;
    const auto fail = [&](const QString &why) {
        reason = why;
        return false;
    };
    const QFileInfo info(from);
    if (info.exists() && !info.isFile())
        return fail(noRegularFile());
    const Descriptor source(toPath(from), O_RDONLY);
    if (!source.isOpen())
        return fail(reasonOf(errno));
    if (isSame(statusOf(source.number()), toPath(to)))
        return fail(reasonOf(EINVAL));
    QFile reader;
    reader.open(source.number(), QIODevice::ReadOnly);
    const QByteArray content = reader.readAll();
    if (reader.error() != QFileDevice::NoError)
        return fail(reader.errorString());
    if (!QDir().mkpath(QFileInfo(to).absolutePath()))
        return fail(reasonOf(ENOTDIR));
    return replace(to, content, source.number(), reason);
}

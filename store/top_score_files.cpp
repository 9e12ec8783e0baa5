#include "store/top_score_files.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <thread>

#include "core/program_folder.h"
#include "store/file_lock.h"
#include "store/replace_file.h"
#include "store/windows_1252.h"

namespace fs = std::filesystem;

namespace {

constexpr qsizetype textSize = 10;
constexpr qsizetype scoreAt = textSize;
constexpr qsizetype dateAt = scoreAt + sizeof(qint32);
constexpr qsizetype slotSize = dateAt + textSize;
constexpr qsizetype trailerAt = scoreRecords * slotSize;
constexpr qint32 trailer = 1;

// Far more than a table can grow to: a file past this size is none, and is not read into memory.
constexpr qint64 largestFile = 1 << 20;

constexpr int outOfMemory = 7;
constexpr int deviceError = 57;
constexpr int diskFull = 61;
constexpr int permissionDenied = 70;
constexpr int pathFileAccess = 75;
constexpr int pathNotFound = 76;

const char* Description(int code) {
    switch (code) {
        case outOfMemory:
            return "Out of memory";
        case fileNotFound:
            return "File not found";
        case diskFull:
            return "Disk full";
        case permissionDenied:
            return "Permission denied";
        case pathFileAccess:
            return "Path/File access error";
        case pathNotFound:
            return "Path not found";
        default:
            return "Device I/O error";
    }
}

[[noreturn]] void Fail(int code, const QString& path) {
    throw ScoreFileError(code, Description(code), path.toStdString());
}

int CodeOf(QFileDevice::FileError error) {
    switch (error) {
        case QFileDevice::OpenError:
        case QFileDevice::PermissionsError:
            return permissionDenied;
        case QFileDevice::ResourceError:
            return diskFull;
        case QFileDevice::RenameError:
            return pathFileAccess;
        default:
            return deviceError;
    }
}

fs::path NativePath(const QString& path) { return path.toStdU16String(); }

QByteArray LittleEndian(qint32 number) {
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

// The record as its 24 bytes on disk.
QByteArray ToSlot(const ScoreRecord& record) {
    return ToWindows1252(record.PlayerName).leftJustified(textSize, ' ', true) + LittleEndian(record.Score) +
           ToWindows1252(record.GameDate).leftJustified(textSize, ' ', true);
}

QByteArray UnusedSlot() {
    const std::string nul(1, '\0');
    return ToSlot({nul, unusedScore, nul});
}

std::string FieldText(const QByteArray& slot, qsizetype at) {
    QByteArray field = slot.mid(at, textSize);
    if (const qsizetype nul = field.indexOf('\0'); nul >= 0) field.truncate(nul);
    while (field.endsWith(' ')) field.chop(1);
    return FromWindows1252(field);
}

int ScoreOf(const QByteArray& slot) { return qFromLittleEndian<qint32>(slot.data() + scoreAt); }

ScoreRecord FromSlot(const QByteArray& slot) { return {FieldText(slot, 0), ScoreOf(slot), FieldText(slot, dateAt)}; }

// A slot past the end of the file is an unused one. So is one that the end cuts off before its score is whole; cut in
// its date it keeps what it has.
QByteArray SlotAt(const QByteArray& file, int number) {
    const QByteArray slot = file.mid((number - 1) * slotSize, slotSize);
    return slot.size() < dateAt ? UnusedSlot() : slot + UnusedSlot().mid(slot.size());
}

// Like a write to the file itself: it grows as needed, with zeros in a gap.
void PutAt(QByteArray& file, qsizetype offset, const QByteArray& bytes) {
    file.resize(std::max(file.size(), offset + bytes.size()), '\0');
    file.replace(offset, bytes.size(), bytes);
}

void PutSlot(QByteArray& file, int number, const QByteArray& slot) { PutAt(file, (number - 1) * slotSize, slot); }

// Rounds to nearest, ties to even.
int CountSlots(const QByteArray& file) {
    return static_cast<int>(std::lrint(static_cast<double>(file.size()) / static_cast<double>(slotSize)));
}

// Returns the place, or -1 when no slot holds less and none is left.
int PlaceRecord(QByteArray& file, const ScoreRecord& record) {
    const int count = CountSlots(file);
    int place = 1;
    while (place <= count && ScoreOf(SlotAt(file, place)) >= record.Score) ++place;
    if (place > count && count >= scoreRecords) return -1;

    for (int last = std::min(count, scoreRecords - 1); last >= place; --last)
        PutSlot(file, last + 1, SlotAt(file, last));
    PutSlot(file, place, ToSlot(record));
    if (count == 0)
        for (int unused = 2; unused <= scoreRecords; ++unused) PutSlot(file, unused, UnusedSlot());
    return place;
}

// Whether there is a table at the path. Throws when it is something else or there is no folder for one.
bool TableStands(const QString& path) {
    std::error_code error;
    switch (fs::status(NativePath(path), error).type()) {
        case fs::file_type::regular:
            return true;
        case fs::file_type::none:
            Fail(permissionDenied, path);
        case fs::file_type::not_found:
            break;
        default:
            Fail(pathFileAccess, path);
    }
    if (!fs::is_directory(NativePath(path).parent_path(), error)) Fail(pathNotFound, path);
    return false;
}

QByteArray ReadTable(const QString& path, QIODevice::OpenMode mode, qint64 atMost) {
    QFile file(path);
    if (!file.open(mode | QIODevice::ExistingOnly)) Fail(CodeOf(file.error()), path);
    QByteArray bytes = file.read(atMost);
    if (file.error() != QFileDevice::NoError) Fail(CodeOf(file.error()), path);
    return bytes;
}

// Held from the reading of a table to its replacing, so that of two programs that record at once none undoes the other.
// The lock lies on the folder: a table itself is another file after each update. Where there are no locks it goes on
// without one.
void LockTable(FileLock& lock, const QString& path) {
    constexpr std::chrono::seconds patience(5);  // an update takes milliseconds
    const QFileInfo table(path);
    const QString folder = QFileInfo(table.exists() ? table.canonicalFilePath() : path).path();
    const auto end = std::chrono::steady_clock::now() + patience;
    while (lock.Try(folder, LockOn::Folder) == LockAttempt::HeldByAnother) {
        if (std::chrono::steady_clock::now() > end) Fail(permissionDenied, path);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

}  // namespace

QString TopScoreFiles::PathOf(int number) const {
    return QString::fromStdString(ProgramFile(folder_, {"scores" + std::to_string(number) + ".dat"}));
}

int TopScoreFiles::Record(int number, const ScoreRecord& record) {
    const QString path = PathOf(number);
    QByteArray file;
    FileLock lock;
    LockTable(lock, path);
    if (TableStands(path)) file = ReadTable(path, QIODevice::ReadWrite, largestFile + 1);
    if (file.size() > largestFile) Fail(outOfMemory, path);

    const int place = PlaceRecord(file, record);
    PutAt(file, trailerAt, LittleEndian(trailer));
    const auto failure = ReplaceFile(path, file, everyones);
    if (failure != QFileDevice::NoError) Fail(CodeOf(failure), path);
    return place;
}

bool TopScoreFiles::TopScoreFileExists(int number) {
    std::error_code error;
    return fs::is_regular_file(NativePath(PathOf(number)), error);
}

ScoreTable TopScoreFiles::LoadTopScores(int number) {
    const QString path = PathOf(number);
    if (!TableStands(path)) Fail(fileNotFound, path);

    const QByteArray file = ReadTable(path, QIODevice::ReadOnly, trailerAt);
    ScoreTable records;
    for (int i = 0; i < scoreRecords; ++i) records[static_cast<std::size_t>(i)] = FromSlot(SlotAt(file, i + 1));
    return records;
}

void TopScoreFiles::DeleteTopScores(int number) {
    const QString path = PathOf(number);
    if (!TableStands(path)) Fail(fileNotFound, path);

    std::error_code error;
    fs::remove(NativePath(path), error);
    if (error) Fail(permissionDenied, path);
}

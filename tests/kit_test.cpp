#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include "kit/pointers.h"
#include "kit/qt_clock.h"
#include "kit/regular_file.h"
#include "store/windows_1252.h"
#include "tests/files.h"

namespace {

TEST(ShortDateText, FitsAScoreRecordEverywhere) {
    const std::pair<const char*, const char*> places[] = {
        {"en_US", "1/2/26"},     {"de_DE", "02.01.26"},   {"en_GB", "02/01/2026"},
        {"ar_EG", "2026-01-02"}, {"hu_HU", "2026-01-02"}, {"C", "2026-01-02"},
    };
    for (const auto& [name, text] : places) EXPECT_EQ(ShortDateText(QLocale(name), {2026, 1, 2}), text) << name;
    const auto all = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    ASSERT_GT(all.size(), 300);
    for (const QLocale& locale : all)
        for (const QDate date : {QDate(2026, 11, 23), QDate(2031, 1, 2)}) {
            const QByteArray bytes = ToWindows1252(ShortDateText(locale, date).toStdString());
            EXPECT_TRUE(bytes.size() >= 6 && bytes.size() <= 10 && !bytes.contains('?')) << locale.name().toStdString();
        }
}

TEST(StartOfFile, ReadsOfRegularFilesOnly) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("base.cur");
    const QByteArray name = QFile::encodeName(path);
    EXPECT_EQ(StartOfFile(path, 10), "");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("0123456789") == 10 && file.flush());
    EXPECT_EQ(StartOfFile(path, 4), "0123");
    EXPECT_EQ(StartOfFile(path, 99), "0123456789");
    ASSERT_TRUE(file.seek(0) && file.write(BytesOf(QFileInfo(HELP_FILE).path() + "/../base.cur")) > 99);
    ASSERT_TRUE(file.seek(14) && file.write("\xFF\xFF\xFF\x7F") &&
                file.resize(5'000'000'000));  // a size that is not there
    EXPECT_EQ(StartOfFile(path, 99).size(), 99);
    QWidget window;
    SetBasePointer(window, folder.path() + '/');
    for (const auto& plant :
         {+[](const char* at) { return mkfifo(at, 0600); }, +[](const char* at) { return mkdir(at, 0700); },
          +[](const char* at) { return symlink("/dev/zero", at); }}) {
        ASSERT_EQ((QFile::remove(path) || rmdir(name) == 0) ? plant(name) : -1, 0);
        EXPECT_EQ(StartOfFile(path, 99), "");
        SetBasePointer(window, folder.path() + '/');
    }
    EXPECT_FALSE(window.testAttribute(Qt::WA_SetCursor)) << "none of these is a pointer";
}

}  // namespace

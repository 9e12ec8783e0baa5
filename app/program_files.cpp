#include "app/program_files.h"

#include <QDir>
#include <QFileInfo>

#include "core/program_folder.h"

namespace {
std::string Folder(const QString& path) {
    return AsFolder(QDir::toNativeSeparators(QDir::cleanPath(path)).toStdString());
}
}  // namespace

ProgramFiles FilesInOneFolder(const std::string& folder) { return {folder, folder, ScoresFolder(folder)}; }

ProgramFiles FindProgramFiles(const QString& programFolder, const QString& userFolder) {
    const QDir folder(programFolder);
    const bool installed = QFileInfo(folder.filePath(LUCKYCUP_DATA)).isDir();
    if (!installed || folder.exists("base.cur")) return FilesInOneFolder(Folder(programFolder));

    const std::string scores = ScoresFolder(Folder(userFolder));
    QDir().mkpath(QString::fromStdString(scores));
    return {Folder(folder.filePath(LUCKYCUP_DATA)), Folder(folder.filePath(LUCKYCUP_PLUGINS)), scores};
}

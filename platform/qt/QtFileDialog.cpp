#include "platform/qt/QtFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "platform/qt/QtText.h"
#include "platform/qt/Session.h"

namespace wxbrg {

namespace {

bool Has(std::int32_t flags, std::int32_t flag) {
    return (flags & flag) != 0;
}

/// Whether an existing file can be opened for writing; it is not changed.
bool IsWritable(const QFileInfo& file) {
    return QFile(file.filePath()).open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
}

/// What is wrong with a chosen name, in a sentence that Qt has in each of its languages; empty when all is
/// right.
QString Objection(const QFileInfo& file, std::int32_t flags) {
    const QFileInfo folder(file.path());
    if (Has(flags, FileDialogFlag::pathMustExist) && !folder.isDir())
        return QFileDialog::tr(
                   "%1\nDirectory not found.\nPlease verify the "
                   "correct directory name was given.")
            .arg(folder.filePath());
    const bool writable = file.exists() ? IsWritable(file) : folder.isWritable() || !folder.exists();
    if (Has(flags, FileDialogFlag::noReadOnlyReturn) && !writable)
        return QCoreApplication::translate("QPrintDialog",
                                           "File %1 is not writable.\nPlease choose a different file name.")
            .arg(file.filePath());
    return {};
}

void SetUp(QFileDialog& dialog, const FileDialogSettings& settings) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite,
                     !Has(settings.flags, FileDialogFlag::overwritePrompt));
    dialog.setDefaultSuffix(ToQt(settings.defaultExtension));
    const QStringList filters = NameFilters(settings.filter);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(settings.filterIndex - 1));
    const QString folder = ToQt(settings.initialDirectory);
    dialog.setDirectory(folder.isEmpty() ? QDir::currentPath() : folder);
    if (!IsPattern(settings.fileName)) dialog.selectFile(ToQt(settings.fileName));
}

}  // namespace

QStringList NameFilters(const std::string& filter) {
    const QStringList parts = ToQt(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(';', Qt::SkipEmptyParts);
        patterns.replaceInStrings("*.*", "*");
        filters << parts[i].section('(', 0, 0).trimmed() + " (" + patterns.join(' ') + ")";
    }
    return filters;
}

std::optional<std::string> QtFileDialog::AskSaveName(const FileDialogSettings& settings) {
    OpenSession(language_);
    QFileDialog dialog(QApplication::activeModalWidget());
    SetUp(dialog, settings);
    while (dialog.exec() == QDialog::Accepted) {
        const QFileInfo file(dialog.selectedFiles().value(0));
        if (IsPattern(file.fileName().toStdString()) || file.isDir()) continue;
        const QString objection = Objection(file, settings.flags);
        if (objection.isEmpty()) return file.filePath().toStdString();
        QMessageBox::warning(&dialog, dialog.windowTitle(), objection);
    }
    return std::nullopt;
}

}  // namespace wxbrg

#include "platform/qt/QtFileDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QShortcut>

#include "platform/qt/QtText.h"
#include "platform/qt/Session.h"

namespace wxbrg {

namespace {

/// The question before a new file is made, which Qt has in no language.
QString CreateQuestion(const std::string& language) {
    if (language == "DEU") return "Die Datei %1 existiert nicht.\nSoll sie angelegt werden?";
    return "%1 does not exist.\nDo you want to create it?";
}

/// That the name, or its log's, is a file that the export reads, which Qt has in no language.
QString InputObjection(const std::string& language) {
    if (language == "DEU")
        return "%1 oder das Protokoll dazu würde eine Datei überschreiben, die der Export liest.\n"
               "Bitte wählen Sie einen anderen Namen.";
    return "%1 or its log would overwrite a file that the export reads.\nPlease choose a different file "
           "name.";
}

/// What is wrong with a chosen name, in a sentence that Qt has in each of its languages; empty when all is
/// right.
QString Objection(const QFileInfo& file, const FileDialogSettings& settings, const std::string& language) {
    if (settings.Refuses(file.filePath().toStdString())) return InputObjection(language).arg(file.filePath());
    const QFileInfo folder(file.path());
    if (settings.Has(FileDialogFlag::pathMustExist) && !folder.isDir())
        return QFileDialog::tr(
                   "%1\nDirectory not found.\nPlease verify the "
                   "correct directory name was given.")
            .arg(folder.filePath());
    const bool writable =
        file.exists() ? IsWritable(file.filePath().toStdString()) : folder.isWritable() || !folder.exists();
    if (settings.Has(FileDialogFlag::noReadOnlyReturn) && !writable)
        return QCoreApplication::translate("QPrintDialog",
                                           "File %1 is not writable.\nPlease choose a different file name.")
            .arg(file.filePath());
    return {};
}

/// Adds a Help button, and F1 as its key.
void AddHelp(QFileDialog& dialog, const std::function<void()>& help) {
    auto* const buttons = dialog.findChild<QDialogButtonBox*>();
    buttons->addButton(QDialogButtonBox::Help);
    QObject::connect(buttons, &QDialogButtonBox::helpRequested, &dialog, help);
    QObject::connect(new QShortcut(Qt::Key_F1, &dialog), &QShortcut::activated, &dialog, help);
}

/// Whether the user wants a file that is not there to be made, where that is to be asked.
bool AgreesToCreate(QFileDialog& dialog, const QFileInfo& file, const FileDialogSettings& settings,
                    const std::string& language) {
    if (file.exists() || !settings.Has(FileDialogFlag::createPrompt)) return true;
    return QMessageBox::question(&dialog, dialog.windowTitle(), CreateQuestion(language).arg(file.fileName()),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) == QMessageBox::Yes;
}

void SetUp(QFileDialog& dialog, const FileDialogSettings& settings) {
    // The desktop's own dialog takes no Help button.
    dialog.setOption(QFileDialog::DontUseNativeDialog, settings.Has(FileDialogFlag::showHelp));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !settings.Has(FileDialogFlag::overwritePrompt));
    dialog.setDefaultSuffix(ToQt(settings.defaultExtension));
    const QStringList filters = NameFilters(settings.filter);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(settings.filterIndex - 1));
    const QString folder = ToQt(settings.initialDirectory);
    dialog.setDirectory(folder.isEmpty() ? QDir::currentPath() : folder);
    if (!IsPattern(settings.fileName)) dialog.selectFile(ToQt(settings.fileName));
    if (settings.Has(FileDialogFlag::showHelp)) AddHelp(dialog, settings.help);
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
        const QString objection = Objection(file, settings, language_);
        if (!objection.isEmpty())
            QMessageBox::warning(&dialog, dialog.windowTitle(), objection);
        else if (AgreesToCreate(dialog, file, settings, language_))
            return file.filePath().toStdString();
    }
    return std::nullopt;
}

}  // namespace wxbrg

#include "ui/dialogs/mFileChooser.h"

#include <QDir>
#include <QStandardPaths>

#include "app/mPath.h"
#include "ui/QtText.h"

namespace mFileChooser {
namespace {

QString NameFilter(const QString& description, const QString& patterns) {
    const QString qtPatterns = patterns.split(u';', Qt::SkipEmptyParts).join(u' ').trimmed();
    const QString tail = QStringLiteral("(") + qtPatterns + QStringLiteral(")");
    if (description.trimmed().endsWith(tail))
        return description.trimmed();
    return description.trimmed() + QStringLiteral(" ") + tail;
}

void SetStartingPoint(QFileDialog& dialog, const OpenFileOptions& options) {
    const std::string folder = mPath::GetDirectoryPart(options.fileName);
    if (!folder.empty())
        dialog.setDirectory(QtText::ToQt(folder));
    else if (!options.initialDirectory.empty())
        dialog.setDirectory(QtText::ToQt(options.initialDirectory));
    if (folder.size() < options.fileName.size())
        dialog.selectFile(QtText::ToQt(options.fileName.substr(folder.size())));
}

void SetFilters(QFileDialog& dialog, const OpenFileOptions& options) {
    const QStringList filters = NameFilters(options.filter);
    if (filters.isEmpty())
        return;
    dialog.setNameFilters(filters);
    const bool inRange = options.filterIndex >= 1 && options.filterIndex <= filters.size();
    dialog.selectNameFilter(filters.at(inRange ? options.filterIndex - 1 : 0));
}

QFileDialog::FileMode ModeOf(const OpenFileOptions& options) {
    if (options.multiSelect)
        return QFileDialog::ExistingFiles;
    return options.fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile;
}

}  // namespace

QStringList NameFilters(const std::string& filter) {
    const QStringList parts = QtText::ToQt(filter).split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        if (parts.at(i).isEmpty() || parts.at(i + 1).isEmpty())
            break;
        filters << NameFilter(parts.at(i), parts.at(i + 1));
    }
    return filters;
}

void Configure(QFileDialog& dialog, const OpenFileOptions& options) {
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(ModeOf(options));
    dialog.setOption(QFileDialog::ReadOnly, options.readOnlyChecked);
    if (!options.title.empty())
        dialog.setWindowTitle(QtText::ToQt(options.title));
    dialog.setDefaultSuffix(QtText::ToQt(options.defaultExtension));
    SetFilters(dialog, options);
    SetStartingPoint(dialog, options);
}

OpenFileAnswer AnswerOf(const QFileDialog& dialog, const OpenFileOptions& options) {
    OpenFileAnswer answer;
    answer.readOnlyChecked = options.readOnlyChecked;
    if (dialog.result() != QDialog::Accepted)
        return answer;
    answer.outcome = OpenFileAnswer::Outcome::kChosen;
    for (const QString& file : dialog.selectedFiles())
        answer.files.push_back(QtText::FromQt(QDir::toNativeSeparators(file)));
    return answer;
}

void ConfigureFolder(QFileDialog& dialog, const std::string& title, const std::string& rootFolder) {
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly, true);
    dialog.setWindowTitle(QtText::ToQt(title));
    dialog.setDirectory(rootFolder.empty() ? QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)
                                           : QtText::ToQt(rootFolder));
}

std::string FolderOf(const QFileDialog& dialog) {
    if (dialog.result() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return QtText::FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

QWidget* OwnerWindow(int64_t owner) {
    if (owner == -1)
        return nullptr;
    return QWidget::find(static_cast<WId>(owner));
}

}  // namespace mFileChooser

#include "platform/qt/HelpWindow.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QUrl>

#include "platform/qt/QtText.h"

namespace wxbrg {

namespace {

/// The size of the window in characters of its font.
constexpr int contentsWidth = 50;
constexpr int textWidth = 115;
constexpr int heightInLines = 40;

QString NotFound(const QString& what) {
    return QFileDialog::tr("%1\nFile not found.\nPlease verify the correct file name was given.").arg(what);
}

}  // namespace

HelpWindow::HelpWindow(const std::string& path, QWidget* parent)
    : QDialog(parent, Qt::Window),
      path_(path),
      book_(HelpBook::Read(path)),
      contents_(new QListWidget(this)),
      text_(new QTextBrowser(this)),
      back_(new QPushButton(QFileDialog::tr("Back"), this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    LayOut();
    ListPages();
    text_->setOpenLinks(false);
    connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        Follow(link);
    });
    connect(contents_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        ShowPage(item->data(Qt::UserRole).toInt());
    });
    connect(contents_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        ShowPage(item->data(Qt::UserRole).toInt());
    });
    connect(back_, &QPushButton::clicked, this, [this] {
        GoBack();
    });
}

void HelpWindow::LayOut() {
    auto* const splitter = new QSplitter(this);
    splitter->addWidget(contents_);
    splitter->addWidget(text_);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(back_, QDialogButtonBox::ActionRole);
    back_->setAutoDefault(false);
    back_->setEnabled(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(buttons);
    text_->document()->setDocumentMargin(fontMetrics().height());
    const int character = fontMetrics().averageCharWidth();
    resize(character * (contentsWidth + textWidth), fontMetrics().height() * heightInLines);
    splitter->setSizes({character * contentsWidth, character * textWidth});
    contents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    contents_->setSpacing(1);
}

void HelpWindow::ListPages() {
    if (!book_) return;
    for (const HelpPage& page : book_->Pages()) {
        auto* const item = new QListWidgetItem(ToQt(page.title), contents_);
        item->setData(Qt::UserRole, page.number);
        item->setToolTip(item->text());
    }
}

void HelpWindow::ShowPage(std::int32_t number) {
    if (number == shown_) return;
    if (shown_ != 0) history_.append(shown_);
    Display(number);
}

void HelpWindow::GoBack() {
    if (!history_.isEmpty()) Display(history_.takeLast());
}

void HelpWindow::Display(std::int32_t number) {
    shown_ = number;
    back_->setEnabled(!history_.isEmpty());
    const HelpPage* const page = book_ ? book_->Page(number) : nullptr;
    if (page == nullptr) {
        const QString file = ToQt(path_);
        text_->setPlainText(NotFound(book_ ? file + "#" + QString::number(number) : file));
        setWindowTitle(file);
        return;
    }
    text_->setMarkdown(ToQt(page->text));
    setWindowTitle(ToQt(page->title));
    for (int row = 0; row < contents_->count(); ++row)
        if (contents_->item(row)->data(Qt::UserRole).toInt() == number) contents_->setCurrentRow(row);
}

void HelpWindow::Follow(const QUrl& link) {
    if (link.isRelative() && link.hasFragment())
        ShowPage(link.fragment().toInt());
    else
        QDesktopServices::openUrl(link);
}

}  // namespace wxbrg

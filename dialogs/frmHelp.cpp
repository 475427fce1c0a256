#include "dialogs/frmHelp.h"

#include "dialogs/form_controls.h"
#include "platform/spoken_caption.h"
#include "platform/themed_icon.h"

#include <QFile>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QResource>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>

namespace zeltrona::dialogs {
namespace {

// The file is bound with this prefix; it is mounted under a root of its own.
const QString kRoot = QStringLiteral(":/zeltrona-help/help/");
constexpr int kPageRole = Qt::UserRole;

QString textOf(const QString& name) {
    QFile file(kRoot + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

frmHelp::frmHelp(const QString& fileName, QWidget* parent) : QDialog(parent), m_fileName(fileName) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(QStringLiteral("Zeltrona - Help"));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    if (QResource::registerResource(m_fileName, QStringLiteral("/zeltrona-help")) && fillContents()) {
        m_contents->setCurrentRow(0);
    } else {
        m_topic->setPlainText(QStringLiteral("The help file %1 cannot be read.").arg(m_fileName));
    }
    // A page of 76 letters a line beside the contents, also in large letters.
    const int page = fontMetrics().averageCharWidth() * 76;
    resize(std::max(820, m_contents->width() + page), std::max(560, fontMetrics().height() * 30));
}

frmHelp::~frmHelp() {
    QResource::unregisterResource(m_fileName, QStringLiteral("/zeltrona-help"));
}

void frmHelp::buildControls() {
    m_back = named(new QToolButton, "cmdBack", QStringLiteral("Back to the topic before"));
    m_back->setText(QStringLiteral("&Back"));
    m_back->setEnabled(false);
    m_search = named(new QLineEdit, "txtSearch", QStringLiteral("Search the help"));
    m_search->setPlaceholderText(QStringLiteral("Search"));
    m_search->setClearButtonEnabled(true);
    m_contents = named(new QListWidget, "lstContents", QStringLiteral("Contents"));
    m_topic = named(new QTextBrowser, "txtTopic", QStringLiteral("Help topic"));
    m_topic->setOpenLinks(false);
    m_topic->document()->setDefaultStyleSheet(
        QStringLiteral("h1 { color: #D9622B; } td { vertical-align: middle; } a { color: %1; }")
            .arg(platform::isDark(palette()) ? QStringLiteral("#F2A27C") : QStringLiteral("#9A3B10")));
    m_topic->document()->setDocumentMargin(kEdge);

    connect(m_contents, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item != nullptr) {
            showTopic(item->data(kPageRole).toString());
        }
    });
    connect(m_topic, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { showTopic(link.fileName()); });
    connect(m_topic, &QTextBrowser::backwardAvailable, m_back, &QWidget::setEnabled);
    connect(m_back, &QToolButton::clicked, m_topic, &QTextBrowser::backward);
    connect(m_search, &QLineEdit::textChanged, this, &frmHelp::search);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    grid->setSpacing(kGap);
    grid->addWidget(m_search, 0, 0);
    grid->addWidget(m_back, 0, 1, Qt::AlignLeft);
    grid->addWidget(m_contents, 1, 0);
    grid->addWidget(m_topic, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    platform::speakCaptions(*this);
}

bool frmHelp::fillContents() {
    const QStringList lines = textOf(QStringLiteral("contents.txt")).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        auto* item = new QListWidgetItem(line.section(u'\t', 1), m_contents);
        item->setData(kPageRole, line.section(u'\t', 0, 0));
    }
    // The longest topic stands whole, with a fifth of room to spare, in the user's own letters.
    const int width = std::max(200, m_contents->sizeHintForColumn(0) * 6 / 5);
    m_contents->setFixedWidth(width);
    m_search->setFixedWidth(width);
    return !lines.isEmpty();
}

void frmHelp::showTopic(const QString& page) {
    const QUrl url(QStringLiteral("qrc") + kRoot + page);
    if (m_topic->source() != url) {
        m_topic->setSource(url, QTextDocument::HtmlResource);
    }
}

bool frmHelp::holds(const QString& page, const QString& words) const {
    QTextDocument document;
    document.setHtml(textOf(page));
    const QString text = document.toPlainText();
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    return std::all_of(wanted.begin(), wanted.end(),
                       [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

void frmHelp::search(const QString& words) {
    for (int row = 0; row < m_contents->count(); ++row) {
        QListWidgetItem* item = m_contents->item(row);
        item->setHidden(!holds(item->data(kPageRole).toString(), words));
    }
}

} // namespace zeltrona::dialogs

#include "platform/font_dialog_window.h"

#include "platform/swatch.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

namespace zeltrona::platform {

namespace {

struct Script {
    int charset;
    const char* name;
};

constexpr Script kScripts[] = {
    {0, "Western"},
    {238, "Central European"},
    {204, "Cyrillic"},
    {161, "Greek"},
    {162, "Turkish"},
    {186, "Baltic"},
    {177, "Hebrew"},
    {178, "Arabic"},
    {163, "Vietnamese"},
    {222, "Thai"},
    {128, "Japanese"},
    {129, "Korean"},
    {134, "Chinese, simplified"},
    {136, "Chinese, traditional"},
};

} // namespace

FontDialogWindow::FontDialogWindow(QWidget* parent, FontEffects effects) : QFontDialog(parent) {
    setObjectName(QStringLiteral("fontDialog"));
    setWindowTitle(QStringLiteral("Font"));
    setAccessibleName(QStringLiteral("Font"));
    // A native dialog cannot carry the script list.
    setOption(QFontDialog::DontUseNativeDialog);
    hideWritingSystems();
    nameParts();
    addScriptRow(effects);
    if (effects == FontEffects::Hidden) {
        hideEffects();
    }
}

void FontDialogWindow::addScriptRow(FontEffects effects) {
    m_scripts = new QComboBox(this);
    m_scripts->setObjectName(QStringLiteral("cboScript"));
    m_scripts->setAccessibleName(QStringLiteral("Script"));
    for (const Script& script : kScripts) {
        m_scripts->addItem(QString::fromLatin1(script.name), script.charset);
    }
    connect(m_scripts, &QComboBox::currentIndexChanged, this, [this] { emit charsetChanged(charset()); });
    auto* label = new QLabel(QStringLiteral("Sc&ript:"), this);
    label->setBuddy(m_scripts);

    m_colorButton = new QPushButton(swatch(m_color), QStringLiteral("&Color..."), this);
    m_colorButton->setObjectName(QStringLiteral("cmdFontColor"));
    m_colorButton->setAccessibleName(QStringLiteral("Text color"));
    m_colorButton->setAutoDefault(false);
    m_colorButton->setVisible(effects == FontEffects::Offered);
    connect(m_colorButton, &QPushButton::clicked, this, &FontDialogWindow::askColor);

    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->setContentsMargins(0, 8, 0, 8);
    row->addWidget(label);
    row->addWidget(m_scripts);
    row->addStretch();
    row->addWidget(m_colorButton);
    // The buttons stay the last row, where every dialog has them.
    auto* grid = qobject_cast<QGridLayout*>(layout());
    auto* buttons = findChild<QDialogButtonBox*>();
    Q_ASSERT(grid != nullptr && buttons != nullptr);
    grid->removeWidget(buttons);
    grid->addLayout(row, grid->rowCount(), 0, 1, grid->columnCount());
    grid->addWidget(buttons, grid->rowCount(), 0, 1, grid->columnCount());
}

void FontDialogWindow::hideEffects() {
    const auto groups = findChildren<QGroupBox*>();
    for (QGroupBox* group : groups) {
        if (group->findChild<QCheckBox*>() != nullptr) {
            group->hide();
        } else if (group->findChild<QLineEdit*>() != nullptr) {
            giveRoom(*group);
        }
    }
}

// The sample asks for no height of its own and lives on that of the effects beside it.
void FontDialogWindow::giveRoom(QGroupBox& sample) {
    auto* grid = qobject_cast<QGridLayout*>(layout());
    Q_ASSERT(grid != nullptr);
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(&sample), &row, &column, &rows, &columns);
    grid->removeWidget(&sample);
    grid->addWidget(&sample, row, 0, rows, grid->columnCount());
    sample.findChild<QLineEdit*>()->setMinimumHeight(3 * fontMetrics().lineSpacing());
}

// The toolkit's own list only filters the faces; beside a list of scripts it would mislead.
void FontDialogWindow::hideWritingSystems() {
    const auto labels = findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (auto* list = qobject_cast<QComboBox*>(label->buddy())) {
            label->hide();
            list->hide();
        }
    }
}

// The toolkit names the labels over the three columns, and neither the fields nor the lists below them.
void FontDialogWindow::nameParts() {
    const char* const columns[] = {"Font", "Font style", "Size"};
    const auto fields = findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    const auto lists = findChildren<QListView*>(QString(), Qt::FindDirectChildrenOnly);
    for (int column = 0; column < 3; ++column) {
        if (column < fields.size() && column < lists.size()) {
            fields[column]->setAccessibleName(QLatin1String(columns[column]));
            lists[column]->setAccessibleName(QLatin1String(columns[column]));
        }
    }
}

void FontDialogWindow::openOn(const QString& face, double points) {
    QFont font(face);
    font.setPointSizeF(points);
    m_openedFace = face;
    m_openedFamily = QFontInfo(font).family();
    font.setFamily(m_openedFamily);
    setCurrentFont(font);
}

QString FontDialogWindow::chosenFace(const QFont& font) const {
    const QString family = font.family();
    return family == m_openedFamily ? m_openedFace : family;
}

int FontDialogWindow::charset() const {
    return m_scripts->currentData().toInt();
}

void FontDialogWindow::setCharset(int charset) {
    int place = m_scripts->findData(charset);
    if (place < 0) {
        m_scripts->addItem(QStringLiteral("Other (%1)").arg(charset), charset);
        place = m_scripts->count() - 1;
    }
    m_scripts->setCurrentIndex(place);
}

void FontDialogWindow::setColor(const QColor& color) {
    if (!color.isValid() || color == m_color) {
        return;
    }
    m_color = color;
    m_colorButton->setIcon(swatch(color));
    emit colorChanged(color);
}

void FontDialogWindow::askColor() {
    QColorDialog window(m_color, this);
    window.setObjectName(QStringLiteral("fontColorDialog"));
    if (window.exec() == QDialog::Accepted) {
        setColor(window.selectedColor());
    }
}

} // namespace zeltrona::platform

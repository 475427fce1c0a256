#include "dialogs/team_card.h"

#include "dialogs/form_controls.h"
#include "dialogs/player_preview.h"
#include "dialogs/text_limits.h"
#include "document/code_page.h"
#include "platform/color_value.h"
#include "platform/common_dialog.h"
#include "platform/swatch.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>

namespace zeltrona::dialogs {
namespace {

constexpr std::int16_t kNewPlayCharset = 238;
constexpr int kLabelLength = 2;
constexpr int kLastLabelLength = 8;
constexpr int kSlots = static_cast<int>(document::kSlotCount);

} // namespace

TeamCard::TeamCard(const TeamCardNames& names, document::Color suit, document::Color font, QWidget* parent)
    : QGroupBox(parent), m_suit(suit), m_font(font) {
    named(this, names.frame, names.side);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    column->setSpacing(4);
    buildHead(names);
    auto* head = new QHBoxLayout;
    head->setSpacing(kGap);
    head->addWidget(m_teamColor);
    head->addWidget(m_textColor);
    head->addStretch();
    column->addLayout(head);
    for (int slot = 0; slot < kSlots; ++slot) {
        column->addWidget(buildRow(names, slot));
    }
    auto* foot = new QHBoxLayout;
    foot->setSpacing(kGap);
    foot->addWidget(m_uncheck);
    foot->addStretch();
    foot->addWidget(m_suitReset);
    column->addLayout(foot);
    for (int slot = 0; slot < kSlots; ++slot) {
        connectRow(slot);
    }
    showSwatches();
}

void TeamCard::buildHead(const TeamCardNames& names) {
    m_teamColor = named(new QPushButton, names.teamColor, names.side + QStringLiteral(": team colour"));
    m_textColor = named(new QPushButton, names.textColor, names.side + QStringLiteral(": label colour"));
    m_uncheck = named(new QPushButton, names.uncheck, names.side + QStringLiteral(": leave out all players"));
    m_suitReset = named(new QPushButton(QStringLiteral("Default skin")), names.suitReset,
                        names.side + QStringLiteral(": default skin for all players"));
    for (QPushButton* button : {m_teamColor, m_textColor, m_uncheck, m_suitReset}) {
        button->setAutoDefault(false);
    }
    connect(m_teamColor, &QPushButton::clicked, this, [this] {
        if (askColor(m_suit)) {
            redrawChecked();
        }
    });
    connect(m_textColor, &QPushButton::clicked, this, [this] {
        if (askColor(m_font)) {
            redrawChecked();
        }
    });
    connect(m_uncheck, &QPushButton::clicked, this, [this] {
        for (int slot = 0; slot < kSlots; ++slot) {
            check(slot, false);
        }
    });
    connect(m_suitReset, &QPushButton::clicked, this, [this] {
        resetSkins();
        redrawChecked();
    });
}

QWidget* TeamCard::buildRow(const TeamCardNames& names, int slot) {
    const auto element = [slot](const QString& name) { return QStringLiteral("%1_%2").arg(name).arg(slot); };
    const QString player = QStringLiteral("%1, player %2").arg(names.side).arg(slot + 1);
    Row& r = row(slot);
    r.check = named(new QCheckBox, element(names.check), player + QStringLiteral(" is in the team"));
    r.label = named(new QLineEdit(QString::number(slot + 1)), element(names.text),
                    player + QStringLiteral(": label"));
    r.picture = named(new QLabel, element(names.picture), player + QStringLiteral(": how he looks"));
    r.skinButton = named(new QToolButton, element(names.suit), player + QStringLiteral(": skin colour"));
    const bool last = slot == kSlots - 1;
    r.check->setToolTip(QStringLiteral("This player is in the team"));
    r.label->setMaxLength(last ? kLastLabelLength : kLabelLength);
    r.label->setFixedWidth(r.label->fontMetrics().horizontalAdvance(QStringLiteral("MMMMMMMM")) + 12);
    r.picture->setFixedSize(kPreviewSide, kPreviewSide);
    r.skinButton->setToolTip(QStringLiteral("Skin colour of this player"));
    r.skinButton->setFocusPolicy(Qt::StrongFocus);

    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(r.check);
    layout->addWidget(r.label);
    layout->addStretch();
    layout->addWidget(r.picture);
    layout->addWidget(r.skinButton);
    return line;
}

void TeamCard::connectRow(int slot) {
    Row& r = row(slot);
    connect(r.check, &QCheckBox::toggled, this, [this, slot](bool on) {
        if (on) {
            drawPreview(slot);
        } else {
            clearPreview(slot);
        }
    });
    connect(r.label, &QLineEdit::textChanged, this, [this, slot](const QString& text) {
        if (const QString kept = storableText(text, kNewPlayCharset); kept != text) {
            row(slot).label->setText(kept);
            return;
        }
        // The preview follows the label of a player that is left out, too.
        drawPreview(slot);
    });
    connect(r.skinButton, &QToolButton::clicked, this, [this, slot] {
        if (askColor(row(slot).skin)) {
            drawPreview(slot);
        }
    });
}

void TeamCard::check(int slot, bool on) {
    Row& r = row(slot);
    const QSignalBlocker quiet(r.check);
    r.check->setChecked(on);
    if (on) {
        drawPreview(slot);
    } else {
        clearPreview(slot);
    }
}

bool TeamCard::isChecked(int slot) const {
    return row(slot).check->isChecked();
}

void TeamCard::drawPreview(int slot) {
    const document::Color background = platform::valueOfColor(palette().color(QPalette::Window));
    Row& r = row(slot);
    const QImage image =
        m_bodies ? composeBody(r.skin, m_suit) : circlePreview(r.label->text(), m_suit, m_font, background);
    r.picture->setPixmap(QPixmap::fromImage(image));
}

void TeamCard::clearPreview(int slot) {
    row(slot).picture->clear();
}

void TeamCard::redrawChecked() {
    for (int slot = 0; slot < kSlots; ++slot) {
        if (isChecked(slot)) {
            drawPreview(slot);
        }
    }
    showSwatches();
}

void TeamCard::showBodies(bool bodies) {
    m_bodies = bodies;
    if (bodies) {
        m_font = 0;
    }
    enableSuitButtons(bodies);
    for (int slot = 0; slot < kSlots; ++slot) {
        clearPreview(slot);
    }
    resetSkins();
    redrawChecked();
}

void TeamCard::resetSkins() {
    for (Row& r : m_rows) {
        r.skin = kDefaultSkin;
    }
    showSwatches();
}

void TeamCard::enableSuitButtons(bool enabled) {
    for (Row& r : m_rows) {
        r.skinButton->setEnabled(enabled);
    }
    m_suitReset->setEnabled(enabled);
}

bool TeamCard::askColor(document::Color& color) {
    platform::CommonDialog dialog;
    dialog.color = color;
    if (!platform::showColor(window(), dialog)) {
        return false;
    }
    color = dialog.color;
    showSwatches();
    return true;
}

void TeamCard::showSwatches() {
    m_teamColor->setIcon(platform::swatch(platform::colorOfValue(m_suit)));
    m_textColor->setIcon(platform::swatch(platform::colorOfValue(m_font)));
    for (Row& r : m_rows) {
        r.skinButton->setIcon(platform::swatch(platform::colorOfValue(r.skin)));
    }
}

std::array<document::PlayerSetup, document::kSlotCount> TeamCard::players() const {
    std::array<document::PlayerSetup, document::kSlotCount> players;
    for (int slot = 0; slot < kSlots; ++slot) {
        const Row& r = row(slot);
        players[static_cast<std::size_t>(slot)] = {
            r.check->isChecked(), document::fromUtf8(r.label->text().toStdString(), kNewPlayCharset).bytes,
            r.skin};
    }
    return players;
}

} // namespace zeltrona::dialogs

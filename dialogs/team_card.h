#pragma once

#include "document/setup_writer.h"
#include "render/board_surface.h"

#include <QGroupBox>
#include <QString>

#include <array>
#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace zeltrona::dialogs {

/// The interface names of one side's controls.
struct TeamCardNames {
    QString frame, check, text, picture, suit, suitReset, uncheck, teamColor, textColor;
    QString side; ///< in plain words, for those who do not see the card
};

/// Skin of a player that has none of his own: red 255, green 204, blue 153.
inline constexpr document::Color kDefaultSkin = 10079487;

/// One side of the team window: twelve rows of check box, label, preview and skin, team and label colours
/// above.
class TeamCard : public QGroupBox {
    Q_OBJECT

public:
    TeamCard(const TeamCardNames& names, document::Color suit, document::Color font, QWidget* parent);

    void check(int slot, bool on);
    bool isChecked(int slot) const;
    /// Bodies or circles: skins go back to the default one, and the previews of the chosen players are
    /// painted again. Bodies make labels black; circles leave their colour as it is.
    void showBodies(bool bodies);
    void enableSuitButtons(bool enabled);

    document::Color suit() const { return m_suit; }
    document::Color font() const { return m_font; }
    std::array<document::PlayerSetup, document::kSlotCount> players() const;

    QPushButton* teamColorButton() const { return m_teamColor; }
    QPushButton* textColorButton() const { return m_textColor; }
    QPushButton* uncheckButton() const { return m_uncheck; }

private:
    struct Row {
        QCheckBox* check = nullptr;
        QLineEdit* label = nullptr;
        QLabel* picture = nullptr;
        QToolButton* skinButton = nullptr;
        document::Color skin = 0;
    };

    void buildHead(const TeamCardNames& names);
    QWidget* buildRow(const TeamCardNames& names, int slot);
    void connectRow(int slot);
    void drawPreview(int slot);
    void clearPreview(int slot);
    void redrawChecked();
    void resetSkins();
    bool askColor(document::Color& color);
    void showSwatches();
    Row& row(int slot) { return m_rows[static_cast<std::size_t>(slot)]; }
    const Row& row(int slot) const { return m_rows[static_cast<std::size_t>(slot)]; }

    document::Color m_suit;
    document::Color m_font;
    bool m_bodies = false;
    std::array<Row, document::kSlotCount> m_rows;
    QPushButton* m_teamColor = nullptr;
    QPushButton* m_textColor = nullptr;
    QPushButton* m_uncheck = nullptr;
    QPushButton* m_suitReset = nullptr;
};

} // namespace zeltrona::dialogs

#pragma once

#include <QFrame>

#include <array>

class QToolButton;

namespace zeltrona::session {

/// `pBodyTool`: item 0 is this floating panel on the board, items 1 to 4 are the four poses in it. Their
/// `Tag`s hold the side and the index of the player while the panel is open.
class BodyPanel : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString Tag MEMBER m_tag)

public:
    explicit BodyPanel(QWidget* board);

    /// Shows the panel at a place on the board, moved back as far as the board's edge asks.
    void openAt(QPoint place);

    /// `Tag` of item 0 and of item 1.
    void setTags(const QString& side, const QString& playerIndex);

    /// Index 0 is empty: item 0 is the panel itself.
    std::array<QToolButton*, 5> pBodyTool{};

signals:
    /// Item 1 to 4 was clicked.
    void poseChosen(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    QString m_tag;
};

} // namespace zeltrona::session

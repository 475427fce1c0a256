#pragma once

#include "session/tool_tile.h"

#include <QFrame>
#include <QPoint>

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QToolButton;
class QVBoxLayout;

namespace zeltrona::session {

/// `pToolbox`: the panel of tools that floats over its parent. Its grip moves it; it always stays whole
/// inside the parent, also when that becomes smaller.
class ToolBox : public QFrame {
    Q_OBJECT

public:
    static constexpr int kTools = 11;

    explicit ToolBox(QWidget* parent);

    /// `paintToolIcons`: every tile gets the strip that fits palette and screen, and shows its released cell.
    void paintToolIcons();
    /// Goes to a place, or to the nearest one that keeps it inside.
    void moveInside(QPoint place);

    std::array<ToolTile*, kTools> Picture1{};
    QToolButton* cmdToolBox1Close = nullptr;
    QLabel* Label3 = nullptr;
    QCheckBox* CheckCurve = nullptr;
    QToolButton* cmdCurveShowHide = nullptr;

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildGrip();
    void buildTiles(QGridLayout& grid);
    void buildCurvePart(QVBoxLayout& column);
    void showIcons();
    void dragBy(QEvent& event);

    QWidget* m_grip = nullptr;
    QPoint m_grabbedAt;
};

} // namespace zeltrona::session

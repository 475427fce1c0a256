#pragma once

#include <QWidget>

namespace zeltrona::session {

/// The dotted strip by which the tool box is held.
class ToolGrip : public QWidget {
    Q_OBJECT

public:
    explicit ToolGrip(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zeltrona::session

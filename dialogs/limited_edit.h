#pragma once

#include "dialogs/text_limits.h"

#include <QPlainTextEdit>

#include <functional>

namespace zeltrona::dialogs {

/// A text box whose every change, typed or pasted, goes through a rule that may shorten it and bring a
/// message.
class LimitedEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    using Rule = std::function<LimitedText(const QString&)>;
    explicit LimitedEdit(Rule rule, QWidget* parent = nullptr);

    /// Sends the text through the rule again, for a rule that looks at something else too.
    void applyRule();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Rule m_rule;
    bool m_applying = false;
};

} // namespace zeltrona::dialogs

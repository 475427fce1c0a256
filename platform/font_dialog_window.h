#pragma once

#include <QColor>
#include <QFontDialog>

class QComboBox;
class QGroupBox;
class QPushButton;

namespace zeltrona::platform {

enum class FontEffects { Offered, Hidden };

/// The toolkit's font dialog with what it lacks: the character set ("Script") and the colour, both as
/// controls
/// (`cboScript`, `cmdFontColor`) and as properties. Named "fontDialog".
class FontDialogWindow : public QFontDialog {
    Q_OBJECT
    /// Character set number, as 238 for Central European.
    Q_PROPERTY(int charset READ charset WRITE setCharset NOTIFY charsetChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    FontDialogWindow(QWidget* parent, FontEffects effects);

    /// Selects a face and a size in points, plain.
    void openOn(const QString& face, double points);
    /// The face of `font` by the name that the play should keep: the one that the dialog was opened on, when
    /// that only stands for an installed substitute and the user left it.
    QString chosenFace(const QFont& font) const;

    int charset() const;
    void setCharset(int charset);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);

signals:
    void charsetChanged(int charset);
    void colorChanged(const QColor& color);

private:
    void addScriptRow(FontEffects effects);
    void hideEffects();
    void giveRoom(QGroupBox& sample);
    void hideWritingSystems();
    void nameParts();
    void askColor();

    QComboBox* m_scripts = nullptr;
    QPushButton* m_colorButton = nullptr;
    QColor m_color = Qt::black;
    QString m_openedFace;
    QString m_openedFamily; ///< installed family that m_openedFace stands for
};

} // namespace zeltrona::platform

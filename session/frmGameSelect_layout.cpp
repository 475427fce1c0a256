#include "platform/themed_icon.h"
#include "session/control_names.h"
#include "session/frmGameSelect.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zeltrona::session {

namespace {

constexpr int kEdge = 24;
constexpr int kGroupGap = 16;
constexpr int kGap = 8;

QPixmap logo(const QWidget& window) {
    return platform::themedPixmap(QStringLiteral("logo"), window.palette(), window.devicePixelRatioF());
}

} // namespace

void frmGameSelect::buildControls() {
    Image1 = named(new QLabel(this), "Image1", "Zeltrona");
    Image1->setPixmap(logo(*this));
    Image1->setAlignment(Qt::AlignCenter);

    ComboLang = named(new QComboBox(this), "ComboLang", "Language");
    ComboLang->setToolTip(QStringLiteral("Language of the captions"));

    Frame1 = named(new QGroupBox(this), "Frame1", "Play to open");
    Option1[0] = named(new QRadioButton(Frame1), "Option1_0", "Open a saved play");
    Option1[1] = named(new QRadioButton(Frame1), "Option1_1", "Make a new play");
    Option1[0]->setChecked(true);
    auto* choices = new QVBoxLayout(Frame1);
    choices->setSpacing(kGap);
    choices->addWidget(Option1[0]);
    choices->addWidget(Option1[1]);

    Command3 = named(new QPushButton(this), "Command3", "Next");
    Command3->setDefault(true);
    Command3->setAutoDefault(true);
    Command3->setMinimumWidth(96);

    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(Command3);

    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(kEdge, kEdge, kEdge, kEdge - kGap);
    page->setSpacing(kGroupGap);
    page->addWidget(Image1);
    page->addSpacing(kGap);
    page->addWidget(ComboLang);
    page->addWidget(Frame1);
    page->addLayout(bottom);
    page->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(ComboLang, Option1[0]);
    setTabOrder(Option1[1], Command3);
    Option1[0]->setFocus();
}

} // namespace zeltrona::session

#include "output/frmDrawPreview.h"

#include "platform/message_box.h"
#include "platform/spoken_caption.h"
#include "platform/themed_icon.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace zeltrona::output {
namespace {

constexpr std::array<int, 5> kPercents{150, 100, 75, 50, 25};

/// The hourglass for as long as it lives.
class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

template<class Control> Control* named(Control* control, const char* name, const QString& plainWords) {
    control->setObjectName(QLatin1String(name));
    control->setAccessibleName(plainWords);
    return control;
}

QToolButton* barButton(const char* name, const QString& icon, const QString& plainWords) {
    auto* button = named(new QToolButton, name, plainWords);
    button->setIcon(platform::themedIcon(icon, button->palette()));
    button->setToolTip(plainWords);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

ScrollRange scrollRangeOf(int picture, int viewport) {
    ScrollRange range;
    range.max = std::max(0, picture - viewport);
    range.smallChange = viewport > 0 ? std::max(1, range.max / viewport) : 1;
    range.largeChange = range.smallChange;
    if (range.max >= 40) {
        range.largeChange = std::max(range.max / 20, range.smallChange);
    }
    return range;
}

frmDrawPreview::frmDrawPreview(PreviewSource source, QWidget* parent)
    : QDialog(parent), m_source(std::move(source)) {
    setObjectName(QStringLiteral("frmDrawPreview"));
    setWindowTitle(QStringLiteral("Zeltrona - Print preview"));
    setAccessibleName(windowTitle());
    buildControls();
    loadForm();
}

void frmDrawPreview::buildControls() {
    m_viewport = named(new QWidget, "PicZ", QStringLiteral("Page"));
    m_viewport->setAutoFillBackground(true);
    QPalette desk = m_viewport->palette();
    desk.setColor(QPalette::Window, QColor(0x8A, 0x8D, 0x91));
    m_viewport->setPalette(desk);
    m_viewport->setMinimumSize(320, 240);
    buildZoomPictures();
    m_sheet = named(new QLabel(this), "PicX", QStringLiteral("Whole page"));
    m_sheet->hide();
    m_horizontal = named(new QScrollBar(Qt::Horizontal), "HScroll1", QStringLiteral("Scroll sideways"));
    m_vertical = named(new QScrollBar(Qt::Vertical), "VScroll1", QStringLiteral("Scroll up and down"));
    connect(m_horizontal, &QScrollBar::valueChanged, this, [this](int value) {
        picture(m_previewZoomIndex)->move(-value, picture(m_previewZoomIndex)->y());
    });
    connect(m_vertical, &QScrollBar::valueChanged, this, [this](int value) {
        picture(m_previewZoomIndex)->move(picture(m_previewZoomIndex)->x(), -value);
    });

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 12, 12, 12);
    grid->setSpacing(0);
    grid->addWidget(buildBar(), 0, 0, 1, 2);
    grid->setRowMinimumHeight(1, 8);
    grid->addWidget(m_viewport, 2, 0);
    grid->addWidget(m_vertical, 2, 1);
    grid->addWidget(m_horizontal, 3, 0);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    resize(760, 700);
}

void frmDrawPreview::buildZoomPictures() {
    for (std::size_t i = 0; i < m_pictures.size(); ++i) {
        auto* sheet = new QLabel(m_viewport);
        sheet->setObjectName(QStringLiteral("Pic%1").arg(i + 1));
        sheet->setAccessibleName(QStringLiteral("Page at %1 per cent").arg(kPercents[i]));
        // Two grey lines at the right and the lower edge lift the sheet off the desk.
        sheet->setStyleSheet(
            QStringLiteral("border: 0; border-right: 2px solid #6d7074; border-bottom: 2px solid #6d7074;"));
        sheet->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        sheet->hide();
        m_pictures[i] = sheet;
    }
}

QWidget* frmDrawPreview::buildBar() {
    m_pages = named(new QComboBox, "cboPageNo", QStringLiteral("Page number"));
    m_pages->setToolTip(QStringLiteral("Number of the page shown"));
    m_previous = barButton("cmdPrevPage", QStringLiteral("page_prev"), QStringLiteral("Previous page"));
    m_next = barButton("cmdNextPage", QStringLiteral("page_next"), QStringLiteral("Next page"));
    m_total = named(new QLabel, "lblTotalPages", QStringLiteral("Number of pages"));
    m_scales = named(new QComboBox, "cboScale", QStringLiteral("Zoom in per cent"));
    m_scales->setToolTip(QStringLiteral("Size of the page in per cent"));
    m_zoomIn = barButton("cmdZoomIn", QStringLiteral("zoom_in"), QStringLiteral("Zoom in"));
    m_zoomOut = barButton("cmdZoomOut", QStringLiteral("zoom_out"), QStringLiteral("Zoom out"));
    auto* percent = named(new QLabel(QStringLiteral("%")), "lblPercent", QStringLiteral("per cent"));
    auto* print = named(new QPushButton(QStringLiteral("&Print...")), "cmdPrint", QStringLiteral("Print"));
    auto* close = named(new QPushButton(QStringLiteral("&Close")), "cmdClose", QStringLiteral("Close"));
    print->setAutoDefault(false);
    close->setDefault(true);

    connect(m_previous, &QToolButton::clicked, this,
            [this] { m_pages->setCurrentIndex(m_pages->currentIndex() - 1); });
    connect(m_next, &QToolButton::clicked, this,
            [this] { m_pages->setCurrentIndex(m_pages->currentIndex() + 1); });
    connect(m_zoomIn, &QToolButton::clicked, this, [this] { zoomBy(-1); });
    connect(m_zoomOut, &QToolButton::clicked, this, [this] { zoomBy(1); });
    connect(m_pages, &QComboBox::currentIndexChanged, this, &frmDrawPreview::cboPageNo_Click);
    connect(m_scales, &QComboBox::currentIndexChanged, this, &frmDrawPreview::cboScale_Click);
    connect(print, &QPushButton::clicked, this, [this] {
        m_print = true;
        accept();
    });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (QWidget* control : std::initializer_list<QWidget*>{m_previous, m_pages, m_next, m_total}) {
        row->addWidget(control);
    }
    row->addSpacing(12);
    for (QWidget* control : std::initializer_list<QWidget*>{m_zoomOut, m_scales, percent, m_zoomIn}) {
        row->addWidget(control);
    }
    row->addStretch();
    row->addWidget(print);
    row->addWidget(close);
    return bar;
}

void frmDrawPreview::loadForm() {
    const Hourglass wait;
    m_previewPageCount = m_source.PageCtn();
    m_total->setText(QStringLiteral("of total %1 pages").arg(m_previewPageCount));
    m_sheet->resize(m_source.pageSize);
    for (std::size_t i = 0; i < m_pictures.size(); ++i) {
        m_pictures[i]->resize(m_source.pageSize * kPercents[i] / 100);
    }
    const QSignalBlocker quietPages(m_pages);
    const QSignalBlocker quietScales(m_scales);
    for (int page = 1; page <= m_previewPageCount; ++page) {
        m_pages->addItem(QString::number(page));
    }
    m_pages->setCurrentIndex(0);
    for (const int percent : kPercents) {
        m_scales->addItem(QString::number(percent));
    }
    m_scales->setCurrentIndex(3);
    m_previewZoomIndex = 4;
    updatePageButtons();
    renderPage(1);
    m_loaded = true;
    platform::speakCaptions(*this);
    showZoomPicture();
}

void frmDrawPreview::renderPage(std::int16_t page) {
    m_page = m_source.makePrintPreviewPage(page);
    m_sheet->setPixmap(QPixmap::fromImage(m_page));
    for (int zoom = 1; zoom <= 5; ++zoom) {
        // The window stays alive between the pictures; input waits, so that no page change starts inside
        // another.
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        if (!stretchPage(zoom)) {
            return;
        }
    }
}

QLabel* frmDrawPreview::picture(int zoomIndex) const {
    const auto index = static_cast<std::size_t>(zoomIndex - 1);
    return m_pictures[index];
}

bool frmDrawPreview::stretchPage(int zoomIndex) {
    QLabel* sheet = picture(zoomIndex);
    const qreal ratio = devicePixelRatioF();
    QImage stretched = m_page.isNull() ? QImage()
                                       : m_page.scaled(sheet->size() * ratio, Qt::IgnoreAspectRatio,
                                                       Qt::SmoothTransformation);
    if (stretched.isNull()) {
        platform::showMessage(this, QStringLiteral("Error occurred in sizing images. Cannot continue"),
                              platform::Icon::None);
        return false;
    }
    stretched.setDevicePixelRatio(ratio);
    sheet->setPixmap(QPixmap::fromImage(stretched));
    return true;
}

void frmDrawPreview::cboPageNo_Click(int index) {
    updatePageButtons();
    const Hourglass wait;
    renderPage(static_cast<std::int16_t>(index + 1));
    showZoomPicture();
}

void frmDrawPreview::cboScale_Click(int index) {
    m_previewZoomIndex = static_cast<std::int16_t>(index + 1);
    updateZoomButtons();
    showZoomPicture();
}

void frmDrawPreview::zoomBy(int step) {
    const int index = std::clamp(m_previewZoomIndex + step, 1, 5);
    m_scales->setCurrentIndex(index - 1);
}

void frmDrawPreview::updateZoomButtons() {
    m_zoomIn->setEnabled(m_previewZoomIndex != 1);
    m_zoomOut->setEnabled(m_previewZoomIndex != 5);
}

void frmDrawPreview::updatePageButtons() {
    const int page = m_pages->currentIndex() + 1;
    m_previous->setEnabled(page > 1);
    m_next->setEnabled(page < m_previewPageCount);
}

void frmDrawPreview::showZoomPicture() {
    for (QLabel* sheet : m_pictures) {
        sheet->hide();
    }
    QLabel* sheet = picture(m_previewZoomIndex);
    sheet->show();
    updateScrollBars(*sheet);
    sheet->move(-m_horizontal->value(), -m_vertical->value());
}

void frmDrawPreview::updateScrollBars(const QLabel& sheet) {
    const auto apply = [](QScrollBar& bar, const ScrollRange& range) {
        bar.setRange(0, range.max);
        bar.setSingleStep(range.smallChange);
        bar.setPageStep(range.largeChange);
    };
    apply(*m_horizontal, scrollRangeOf(sheet.width(), m_viewport->width()));
    apply(*m_vertical, scrollRangeOf(sheet.height(), m_viewport->height()));
}

void frmDrawPreview::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (m_loaded) {
        showZoomPicture();
    }
}

} // namespace zeltrona::output

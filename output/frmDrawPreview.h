#pragma once

#include <QDialog>
#include <QImage>

#include <array>
#include <cstdint>
#include <functional>

class QComboBox;
class QLabel;
class QPushButton;
class QScrollBar;
class QToolButton;

namespace zeltrona::output {

/// Where the preview gets its pages from.
struct PreviewSource {
    std::function<std::int16_t()> PageCtn;
    /// The page (from 1) at one and a half times its size on the screen; a null image when it cannot be made.
    std::function<QImage(std::int16_t page)> makePrintPreviewPage;
    QSize pageSize; ///< pixels of the page at 100 per cent
};

/// Bounds of a scroll bar over a picture.
struct ScrollRange {
    int max = 0;
    int smallChange = 1;
    int largeChange = 1;
    friend bool operator==(const ScrollRange&, const ScrollRange&) = default;
};
/// For a picture and a viewport so many pixels long.
ScrollRange scrollRangeOf(int picture, int viewport);

/// Shows the pages one at a time at five zoom levels. A page is rendered once and its five pictures made at
/// once, so that a change of zoom costs nothing.
class frmDrawPreview : public QDialog {
    Q_OBJECT

public:
    frmDrawPreview(PreviewSource source, QWidget* parent);

    /// Whether the user left by Print; the opener then prints.
    bool printFromPreview() const { return m_print; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls();
    QWidget* buildBar();
    void buildZoomPictures();
    void loadForm();
    void cboPageNo_Click(int index);
    void cboScale_Click(int index);
    void zoomBy(int step);
    void updatePageButtons();
    void updateZoomButtons();
    void showZoomPicture();
    void updateScrollBars(const QLabel& picture);
    bool stretchPage(int zoomIndex);
    void renderPage(std::int16_t page);
    QLabel* picture(int zoomIndex) const;

    PreviewSource m_source;
    std::int16_t m_previewZoomIndex = 4;
    std::int16_t m_previewPageCount = 0;
    bool m_print = false;
    bool m_loaded = false;
    QImage m_page;             // the page in full, that the zoom pictures are stretched from
    QLabel* m_sheet = nullptr; // holds it, never shown

    QWidget* m_viewport = nullptr;
    std::array<QLabel*, 5> m_pictures{};
    QScrollBar* m_horizontal = nullptr;
    QScrollBar* m_vertical = nullptr;
    QComboBox* m_pages = nullptr;
    QComboBox* m_scales = nullptr;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    QToolButton* m_zoomIn = nullptr;
    QToolButton* m_zoomOut = nullptr;
    QLabel* m_total = nullptr;
};

} // namespace zeltrona::output

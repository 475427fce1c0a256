#include "output/frmDrawPreview.h"
#include "output/preview_page.h"
#include "tests/output/output_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace zeltrona::output {
namespace {

using namespace zeltrona::testing;

TEST(ScrollRange, PictureThatFitsDoesNotScroll) {
    EXPECT_EQ(scrollRangeOf(200, 400), (ScrollRange{0, 1, 1}));
    EXPECT_EQ(scrollRangeOf(400, 400), (ScrollRange{0, 1, 1}));
}

TEST(ScrollRange, SmallChangeIsAtLeastOneAndGrowsWithThePicture) {
    EXPECT_EQ(scrollRangeOf(439, 400), (ScrollRange{39, 1, 1}));
    EXPECT_EQ(scrollRangeOf(440, 400), (ScrollRange{40, 1, 2}));
    EXPECT_EQ(scrollRangeOf(1300, 400), (ScrollRange{900, 2, 45}));
}

TEST(ScrollRange, LargeChangeIsNotBelowTheSmallOne) {
    EXPECT_EQ(scrollRangeOf(110, 10), (ScrollRange{100, 10, 10}));
}

class Preview : public tests::OutputTest {
protected:
    void open(std::int16_t pages) {
        PreviewSource source;
        source.PageCtn = [pages] { return pages; };
        source.makePrintPreviewPage = [this](std::int16_t page) {
            rendered.push_back(page);
            QImage image(600, 800, QImage::Format_RGB32);
            image.fill(page == 1 ? Qt::red : Qt::blue);
            return image;
        };
        source.pageSize = {400, 600};
        form = std::make_unique<frmDrawPreview>(source, nullptr);
        form->resize(500, 500);
        form->show();
    }
    bool enabled(const char* name) { return control<QWidget>(*form, QLatin1String(name)).isEnabled(); }
    QLabel& picture(int zoom) { return control<QLabel>(*form, QStringLiteral("Pic%1").arg(zoom)); }
    int shownPicture() {
        int shown = 0;
        for (int zoom = 1; zoom <= 5; ++zoom) {
            shown = picture(zoom).isVisible() ? shown * 10 + zoom : shown;
        }
        return shown;
    }
    QString scale() { return control<QComboBox>(*form, "cboScale").currentText(); }

    std::vector<int> rendered;
    std::unique_ptr<frmDrawPreview> form;
};

TEST_F(Preview, OpensOnTheFirstPageAtHalfSize) {
    open(2);
    EXPECT_EQ(rendered, (std::vector<int>{1}));
    EXPECT_EQ(shownPicture(), 4);
    EXPECT_EQ(scale(), QStringLiteral("50"));
    EXPECT_EQ(control<QLabel>(*form, "lblTotalPages").text(), QStringLiteral("of total 2 pages"));
    EXPECT_EQ(control<QComboBox>(*form, "cboPageNo").currentText(), QStringLiteral("1"));
    EXPECT_FALSE(control<QLabel>(*form, "PicX").isVisible());
}

TEST_F(Preview, PicturesHaveTheFiveSizes) {
    open(1);
    EXPECT_EQ(picture(1).size(), QSize(600, 900));
    EXPECT_EQ(picture(2).size(), QSize(400, 600));
    EXPECT_EQ(picture(3).size(), QSize(300, 450));
    EXPECT_EQ(picture(4).size(), QSize(200, 300));
    EXPECT_EQ(picture(5).size(), QSize(100, 150));
    EXPECT_EQ(picture(5).pixmap().size(), QSize(100, 150));
}

TEST_F(Preview, OnePageDisablesBothPageButtons) {
    open(1);
    EXPECT_FALSE(enabled("cmdPrevPage"));
    EXPECT_FALSE(enabled("cmdNextPage"));
    EXPECT_EQ(control<QLabel>(*form, "lblTotalPages").text(), QStringLiteral("of total 1 pages"));
}

TEST_F(Preview, PageButtonsStopAtTheEnds) {
    open(3);
    EXPECT_FALSE(enabled("cmdPrevPage"));
    EXPECT_TRUE(enabled("cmdNextPage"));
    click(*form, "cmdNextPage");
    EXPECT_TRUE(enabled("cmdPrevPage"));
    click(*form, "cmdNextPage");
    EXPECT_FALSE(enabled("cmdNextPage"));
    click(*form, "cmdPrevPage");
    EXPECT_EQ(rendered, (std::vector<int>{1, 2, 3, 2}));
}

TEST_F(Preview, PageChangeRendersThePageAnew) {
    open(2);
    control<QComboBox>(*form, "cboPageNo").setCurrentIndex(1);
    EXPECT_EQ(picture(4).pixmap().toImage().pixelColor(50, 50), QColor(Qt::blue));
    control<QComboBox>(*form, "cboPageNo").setCurrentIndex(0);
    EXPECT_EQ(rendered, (std::vector<int>{1, 2, 1}));
}

TEST_F(Preview, ZoomChangeRendersNothing) {
    open(1);
    control<QComboBox>(*form, "cboScale").setCurrentIndex(0);
    EXPECT_EQ(shownPicture(), 1);
    EXPECT_EQ(rendered.size(), 1U);
}

TEST_F(Preview, ZoomButtonsStopAtTheEnds) {
    open(1);
    click(*form, "cmdZoomOut");
    EXPECT_EQ(scale(), QStringLiteral("25"));
    EXPECT_FALSE(enabled("cmdZoomOut"));
    EXPECT_TRUE(enabled("cmdZoomIn"));
    for (int i = 0; i < 4; ++i) {
        click(*form, "cmdZoomIn");
    }
    EXPECT_EQ(scale(), QStringLiteral("150"));
    EXPECT_EQ(shownPicture(), 1);
    EXPECT_FALSE(enabled("cmdZoomIn"));
    EXPECT_TRUE(enabled("cmdZoomOut"));
}

TEST_F(Preview, ScrollingMovesTheVisiblePicture) {
    open(1);
    control<QComboBox>(*form, "cboScale").setCurrentIndex(0);
    auto& vertical = control<QScrollBar>(*form, "VScroll1");
    auto& horizontal = control<QScrollBar>(*form, "HScroll1");
    EXPECT_EQ(vertical.maximum(), 900 - control<QWidget>(*form, "PicZ").height());
    vertical.setValue(30);
    horizontal.setValue(20);
    EXPECT_EQ(picture(1).pos(), QPoint(-20, -30));
}

TEST_F(Preview, PageThatFitsDoesNotScroll) {
    open(1);
    control<QComboBox>(*form, "cboScale").setCurrentIndex(4);
    EXPECT_EQ(control<QScrollBar>(*form, "VScroll1").maximum(), 0);
    EXPECT_EQ(control<QScrollBar>(*form, "HScroll1").maximum(), 0);
}

TEST_F(Preview, PrintLeavesWithTheWishToPrintAndCloseWithout) {
    open(1);
    click(*form, "cmdClose");
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(form->printFromPreview());
    open(1);
    click(*form, "cmdPrint");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(form->printFromPreview());
}

TEST_F(Preview, PageThatCannotBeMadeIsToldOnce) {
    PreviewSource source;
    source.PageCtn = [] { return std::int16_t{1}; };
    source.makePrintPreviewPage = [](std::int16_t) { return QImage(); };
    source.pageSize = {400, 600};
    answers.expectMessage(QStringLiteral("Error occurred in sizing images. Cannot continue"));
    form = std::make_unique<frmDrawPreview>(source, nullptr);
    EXPECT_EQ(answers.answered(), 1);
}

TEST_F(Preview, PageIsPaintedFromThePrintersList) {
    begin(3, 1, "txtTitle=Horns\n");
    QImage logo(173, 53, QImage::Format_RGB32);
    logo.fill(Qt::red);
    const QSizeF paper = printerPageSize();
    const QImage page = makePrintPreviewPage(walk, PrintMode::BigPictures, 1, 2, QFont(), logo);
    EXPECT_EQ(page.size(), (paper * 2).toSize());
    const PageMetrics metrics = pageMetrics(paper.width(), paper.height(), PrintMode::BigPictures, 1);
    EXPECT_EQ(page.pixelColor((metrics.margin + 65) * 2, 50 * 2), QColor(Qt::red)) << "the logo";
    // The player of frame 2 stands in the second column.
    const double scale = metrics.picW / 363.0;
    const double x = metrics.picW + 2 * metrics.margin + (40 + 13 - 6) * scale;
    const double y = 170 + (40 + 13) * scale;
    EXPECT_EQ(page.pixelColor(static_cast<int>(x * 2), static_cast<int>(y * 2)), QColor(Qt::red));
}

TEST_F(Preview, PageThatThePlayLacksIsWhite) {
    begin(1);
    const QImage page = makePrintPreviewPage(walk, PrintMode::BigPictures, 2, 1, QFont(), QImage());
    EXPECT_EQ(page.pixelColor(100, 200), QColor(Qt::white));
}

} // namespace
} // namespace zeltrona::output

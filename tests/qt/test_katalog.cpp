// All controls of the window: their places, their texts and their order.
#include "window_desk.h"

#include "qt/kontrolki_okna.h"
#include "qt/napisy.h"
#include "qt/wytwornia.h"
#include "rows.h"

#include <QBitmap>
#include <QFontDatabase>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>

#include <tuple>

namespace dorva::test {
namespace {

class Catalogue : public WindowDesk {
protected:
    void SetUp() override {
        WindowDesk::SetUp();
        okno->showRecord();
        okno->show();
    }
    // The controls of a window, each before what may cover it.
    static QList<QWidget*> controlsOf(const QWidget* window) {
        QList<QWidget*> controls;
        for (auto* widget : window->findChildren<QWidget*>(QRegularExpression("^(fra|frm|c|opt|txt|lbl|img|hsc|pic)")))
            if (widget->window() == window)
                controls.append(widget);
        return controls;
    }
    // Compares their names, places, texts and states with a file.
    static void expectControls(const char* file, const QList<QWidget*>& controls) {
        QStringList rows;
        for (const QWidget* control : controls) {
            const QRect r = control->geometry();
            rows += control->objectName() + " in " + control->parentWidget()->objectName() +
                    QString(" at %1,%2 of %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
            rows.back() += control->isEnabled() ? "" : ", disabled";
            rows.back() += control->isVisible() ? "" : ", hidden";
            rows.back() += control->font().bold() ? ", bold / " : " / ";
            for (const char* property : {"title", "text", "toolTip", "alignment"})
                rows.back() += control->property(property).toString() + " / ";
            if (control->testAttribute(Qt::WA_SetPalette))
                rows.back() += control->palette().color(QPalette::Window).name();
        }
        rows.sort();
        rows.replaceInStrings("\n", "|");
        std::vector<std::string> texts;
        for (const QString& row : rows)
            texts.push_back(row.toStdString());
        expectRows(file, texts);
    }
};

TEST_F(Catalogue, EveryControlStandsAtItsPlaceWithItsWords) {
    expectControls("okno.txt", controlsOf(okno.get()));
    EXPECT_EQ(okno->minimumSize(), QSize(897, 617));
    EXPECT_EQ(okno->maximumSize(), QSize(897, 617));
    for (const char* selected : {"optEtapNR(0)", "optObiektyNR(0)", "optPPM(0)", "optNN(0)"})
        EXPECT_TRUE(find<QPushButton>(selected)->isChecked()) << selected;
    const auto* bar = find<QScrollBar>("hscMonet");
    EXPECT_EQ(std::tuple(bar->minimum(), bar->maximum(), bar->value(), bar->hasTracking()),
              std::tuple(1, 99, 1, false));

    start();
    click("lblKolor(4)");
    const auto* palette = find("dlgPaleta");
    expectControls("paleta.txt", controlsOf(palette));
    EXPECT_EQ(palette->windowTitle(), "Paleta Atari");
    EXPECT_EQ(palette->minimumSize(), QSize(210, 337));
    EXPECT_EQ(palette->maximumSize(), QSize(210, 337));
    EXPECT_FALSE(palette->geometry().contains(find("lblKolor(4)")->mapToGlobal(QPoint(0, 0)))); // covers no swatch
}

TEST_F(Catalogue, TabVisitsTheControlsInOrder) {
    open();
    QStringList visited;
    for (int i = 0; i < 20; ++i) {
        visited += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(" "), // stage 1 of the desk is in world 1
              "optEtapNR(0) chkOstatni optObiektyNR(1) txtNazwa txtAutor txtAutorGry(0) txtAutorGry(1) txtAutorGry(2) "
              "cmdLoad cmdLoadArch cmdTest cmdSave cmdSaveArch cmdCreate hscMonet cmdCzysc cmdResetKolory "
              "chkZachowajKolory optPPM(0) optEtapNR(0)");
}

// A container, a control of another kind and a tab stop that aren't in the catalogue: each is named in the last
// message.
TEST_F(Catalogue, AMisspeltNameEndsTheProgram) {
    QWidget window;
    const KontrolkiOkna kontrolki(katalogOkna(), &window);
    const auto end = ::testing::ExitedWithCode(1);
    EXPECT_EXIT(KontrolkiOkna({{wytwornia::ramka, "a", -1, "fraB", 0, 0, 0, 0, "", ""}}, &window), end, "fraB");
    EXPECT_EXIT((void)kontrolki.get<QLineEdit>("cmdLoad"), end, "cmdLoad");
    EXPECT_EXIT(kontrolki.setTabOrder({"cmdLoad", "txtNzawa"}), end, "txtNzawa");
}

// Captions of buttons are measured in bold, as a selected button shows its own.
TEST_F(Catalogue, NoCaptionIsCutAndEachIsDrawn) {
    open();
    for (auto* widget : okno->findChildren<QWidget*>()) {
        QFont font = widget->font();
        const bool isFrame = widget->inherits("QGroupBox");
        const auto* property = isFrame ? "title" : "text";
        const QString caption = widget->property(property).toString();
        if (caption.trimmed().isEmpty() || !widget->isVisible())
            continue;
        if (const auto* field = qobject_cast<QLineEdit*>(widget)) { // shows its full width
            EXPECT_LE(QFontMetrics(font).horizontalAdvance(QString(field->maxLength(), 'W')), field->width() - 6);
            continue;
        }
        const auto* label = qobject_cast<QLabel*>(widget);
        const bool isButton = widget->inherits("QPushButton");
        const int flags = isFrame || (label && !label->wordWrap()) ? 0 : Qt::TextWordWrap;
        const int margin = isFrame ? 10 : isButton ? 2 : widget->inherits("QCheckBox") ? 10 : 0;
        font.setBold(font.bold() || isButton);
        const QSize box(widget->width() - 2 * margin, widget->height());
        EXPECT_GE(double(box.width()) / widthForCaption(QFontMetrics(font), box, flags, caption.trimmed()), 0.9)
            << caption.toStdString();
        // A frame without its caption has a longer line, so the caption changes its colour instead.
        const QRect place = isFrame ? QRect(0, 0, widget->width(), QFontMetrics(font).height()) : widget->rect();
        const QImage withCaption = widget->grab(place).toImage();
        QPalette red = widget->palette();
        red.setColor(QPalette::WindowText, Qt::red);
        isFrame ? widget->setPalette(red) : void(widget->setProperty(property, " "));
        EXPECT_NE(widget->grab(place).toImage(), withCaption) << caption.toStdString();
    }
}

TEST_F(Catalogue, FontsAndIconTravelWithTheProgram) {
    QList<QSize> icons;
    for (int side : {16, 32, 48, 64, 128, 256})
        icons += QSize(side, side);
    EXPECT_EQ(okno->windowIcon().availableSizes(), icons);
    QStringList families;
    for (int id = 0; id < 3; ++id)
        families += QFontDatabase::applicationFontFamilies(id);
    EXPECT_EQ(families, QStringList({"Liberation Sans", "Liberation Sans", "Liberation Mono"}));
    EXPECT_EQ(find("cmdTest")->font().family(), families.front());
    EXPECT_EQ(find("txtNazwa")->font().family(), families.back());
}

TEST_F(Catalogue, ALongCaptionIsNarrowedToItsBox) {
    const QRect box(20, 10, 60, 26);
    for (int flags : {int(Qt::AlignCenter), Qt::AlignCenter | Qt::TextWordWrap})
        for (const char* caption : {"|cccccccccccccccccccccc|", "|nie ma tu miejsca na tyle słów, ile ich jest|"}) {
            QImage image(100, 50, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            drawCaption(painter, box, flags, caption);
            painter.end();
            const QImage paper = image.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor);
            const QRect ink = QRegion(QBitmap::fromImage(paper)).boundingRect();
            EXPECT_TRUE(box.contains(ink)) << caption << flags << " to " << ink.right();
            EXPECT_GT(ink.width(), box.width() * 3 / 4) << caption << flags;
        }
}

} // namespace
} // namespace dorva::test

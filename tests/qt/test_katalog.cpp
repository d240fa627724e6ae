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
    // Compares the names, places, texts and states of a window's controls with a file.
    static void expectControls(const char* file, const QWidget* window) {
        const QRegularExpression names("^(fra|frm|c|opt|txt|lbl|img|hsc|pic)");
        std::vector<std::string> rows;
        for (const auto* control : window->findChildren<QWidget*>(names)) {
            if (control->window() != window)
                continue;
            const QRect r = control->geometry();
            QString row = control->objectName() + " in " + control->parentWidget()->objectName() +
                          QString(" at %1,%2 of %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
            row += control->isEnabled() ? "" : ", disabled";
            row += control->isVisible() ? "" : ", hidden";
            row += control->font().bold() ? ", bold / " : " / ";
            for (const char* property : {"title", "text", "toolTip", "alignment"})
                row += control->property(property).toString().replace("\n", "|") + " / ";
            if (control->testAttribute(Qt::WA_SetPalette))
                row += control->palette().color(QPalette::Window).name();
            rows.push_back(row.toStdString());
        }
        std::ranges::sort(rows);
        expectRows(file, rows);
    }
};

TEST_F(Catalogue, EveryControlStandsAtItsPlaceWithItsWords) {
    expectControls("okno.txt", okno.get());
    EXPECT_EQ(okno->minimumSize(), QSize(897, 617));
    const auto* bar = find<QScrollBar>("hscMonet");
    EXPECT_EQ(std::tuple(bar->minimum(), bar->maximum(), bar->value(), bar->hasTracking()),
              std::tuple(1, 99, 1, false));

    start();
    click("lblKolor(4)");
    const auto* palette = find("dlgPaleta");
    expectControls("paleta.txt", palette);
    EXPECT_EQ(palette->windowTitle(), "Paleta Atari");
    EXPECT_EQ(palette->minimumSize(), QSize(210, 337));
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

TEST_F(Catalogue, AMisspeltNameEndsTheProgram) {
    EXPECT_EXIT(KontrolkiOkna({{wytwornia::ramka, "a", -1, "fraB", 0, 0, 0, 0, "", ""}}, okno.get()),
                ::testing::ExitedWithCode(1), "fraB");
}

// Captions of buttons are measured in bold, as a selected button shows its own.
TEST_F(Catalogue, NoCaptionIsCutAndEachIsDrawn) {
    open();
    for (auto* widget : okno->findChildren<QWidget*>()) {
        const bool isFrame = widget->inherits("QGroupBox"), isButton = widget->inherits("QPushButton");
        const auto* property = isFrame ? "title" : "text";
        const QString caption = widget->property(property).toString().trimmed();
        if (caption.isEmpty() || !widget->isVisible())
            continue;
        if (const auto* field = qobject_cast<QLineEdit*>(widget)) { // shows its full width
            EXPECT_LE(field->fontMetrics().horizontalAdvance(QString(field->maxLength(), 'W')), field->width() - 6);
            continue;
        }
        QFont font = widget->font();
        const int flags = isButton || widget->property("wordWrap").toBool() ? Qt::TextWordWrap : 0;
        const int margin = isButton ? 2 : isFrame || widget->inherits("QCheckBox") ? 10 : 0;
        font.setBold(font.bold() || isButton);
        const QSize box(widget->width() - 2 * margin, widget->height());
        EXPECT_GE(double(box.width()) / widthForCaption(QFontMetrics(font), box, flags, caption), 0.9)
            << caption.toStdString();
        const QRect place = isFrame ? QRect(12, 2, 20, 8) : widget->rect(); // of a frame the gap in its line
        const QImage withCaption = widget->grab(place).toImage();
        widget->setProperty(property, " ");
        EXPECT_NE(widget->grab(place).toImage(), withCaption) << caption.toStdString();
    }
}

TEST_F(Catalogue, FontsAndIconTravelWithTheProgram) {
    EXPECT_EQ(okno->windowIcon().availableSizes().size(), 6);
    for (const auto& [id, name] : {std::pair(0, "cmdTest"), {1, "lblKolor(0)"}, {2, "txtNazwa"}})
        EXPECT_EQ(QFontDatabase::applicationFontFamilies(id), QStringList(find(name)->font().family())) << name;
}

TEST_F(Catalogue, ALongCaptionIsNarrowedToItsBox) {
    const QRect box(20, 10, 60, 26);
    for (int flags : {int(Qt::AlignCenter), Qt::AlignCenter | Qt::TextWordWrap}) {
        QImage image(100, 50, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawCaption(painter, box, flags, "|nie ma tu miejsca na tyle słów, ile ich jest|");
        painter.end();
        const QImage paper = image.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor);
        const QRect ink = QRegion(QBitmap::fromImage(paper)).boundingRect();
        EXPECT_TRUE(box.contains(ink)) << flags << " to " << ink.right();
        EXPECT_GT(ink.width(), box.width() * 3 / 4) << flags;
    }
}

} // namespace
} // namespace dorva::test

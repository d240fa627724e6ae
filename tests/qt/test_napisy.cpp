#include "qt/napisy.h"
#include "stanowisko.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace dorva::test {
namespace {

class Napisy : public Stanowisko {};

// How much of its natural width a widget's caption keeps.
double kept(const QWidget& widget, const QString& caption, int margin, int flags) {
    QFont font = widget.font();
    font.setBold(font.bold() || qobject_cast<const QAbstractButton*>(&widget)); // as a selected one has it
    const QSize box(widget.width() - 2 * margin, widget.height());
    return double(box.width()) / widthForCaption(QFontMetrics(font), box, flags, caption);
}

TEST_F(Napisy, NoCaptionIsCut) {
    open();
    int captions = 0;
    const auto expectFits = [&](const QWidget* widget, const QString& caption, int margin,
                                int flags = Qt::TextWordWrap) {
        EXPECT_GE(kept(*widget, caption, margin, flags), 0.9) << widget->objectName().toStdString();
        captions += !caption.isEmpty();
    };
    for (const auto* ramka : okno->findChildren<QGroupBox*>())
        expectFits(ramka, ramka->title().trimmed(), 10, 0);
    for (const auto* przycisk : okno->findChildren<QPushButton*>())
        expectFits(przycisk, przycisk->text(), 2);
    for (const auto* etykieta : okno->findChildren<QLabel*>())
        expectFits(etykieta, etykieta->text(), 0, etykieta->wordWrap() ? Qt::TextWordWrap : 0);
    for (const auto* znacznik : okno->findChildren<QCheckBox*>())
        EXPECT_LE(znacznik->text().isEmpty() ? 0 : znacznik->sizeHint().width(), znacznik->width());
    EXPECT_GT(captions, 80);
}

TEST_F(Napisy, TheFontsTravelWithTheProgram) {
    QStringList families;
    for (int id = 0; id < 3; ++id)
        families += QFontDatabase::applicationFontFamilies(id);
    EXPECT_EQ(families, QStringList({"Liberation Sans", "Liberation Sans", "Liberation Mono"}));
    for (const char* name : {"cmdTest", "txtNazwa"})
        EXPECT_TRUE(families.contains(find(name)->font().family())) << name;
}

TEST_F(Napisy, ALongCaptionIsNarrowedToItsBox) {
    const QRect box(20, 10, 60, 26);
    for (int flags : {int(Qt::AlignCenter), Qt::AlignCenter | Qt::TextWordWrap})
        for (const char* caption : {"|cccccccccccccccccccccc|", "|nie ma tu miejsca na tyle słów, ile ich jest|"}) {
            QImage image(100, 50, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            drawCaption(painter, box, flags, caption);
            painter.end();
            QRect ink;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    if (image.pixelColor(x, y) != Qt::white)
                        ink |= QRect(x, y, 1, 1);
            EXPECT_TRUE(box.contains(ink)) << caption << flags << " to " << ink.right();
            EXPECT_GT(ink.width(), box.width() * 3 / 4) << caption << flags;
        }
}

} // namespace
} // namespace dorva::test

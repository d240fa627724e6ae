#include "qt/napisy.h"
#include "stanowisko.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPainter>

namespace dorva::test {
namespace {

class Napisy : public Stanowisko {};

// Every caption in its box, in bold where a selected button has it so.
TEST_F(Napisy, NoCaptionIsCutAndEachIsDrawn) {
    open();
    int captions = 0;
    for (auto* widget : okno->findChildren<QWidget*>()) {
        const bool isFrame = widget->inherits("QGroupBox");
        const auto* property = isFrame ? "title" : "text";
        const QString caption = widget->property(property).toString().trimmed();
        if (caption.isEmpty() || !widget->isVisible() || widget->inherits("QLineEdit"))
            continue;
        const auto* label = qobject_cast<QLabel*>(widget);
        const bool isButton = widget->inherits("QPushButton");
        const int flags = isFrame || (label && !label->wordWrap()) ? 0 : Qt::TextWordWrap;
        const int margin = isFrame ? 10 : isButton ? 2 : widget->inherits("QCheckBox") ? 10 : 0;
        QFont font = widget->font();
        font.setBold(font.bold() || isButton);
        const QSize box(widget->width() - 2 * margin, widget->height());
        EXPECT_GE(double(box.width()) / widthForCaption(QFontMetrics(font), box, flags, caption), 0.9)
            << caption.toStdString();
        const QImage shown = widget->grab().toImage();
        widget->setProperty(property, " ");
        EXPECT_NE(widget->grab().toImage(), shown) << caption.toStdString();
        ++captions;
    }
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

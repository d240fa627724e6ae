#include "qt/napisy.h"
#include "stanowisko.h"

#include <QBitmap>
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
        const QImage withCaption = widget->grab().toImage();
        widget->setProperty(property, " ");
        EXPECT_NE(widget->grab().toImage(), withCaption) << caption.toStdString();
        ++captions;
    }
    EXPECT_GT(captions, 80);
}

TEST_F(Napisy, TheFontsTravelWithTheProgram) {
    QStringList families;
    for (int id = 0; id < 3; ++id)
        families += QFontDatabase::applicationFontFamilies(id);
    EXPECT_EQ(families, QStringList({"Liberation Sans", "Liberation Sans", "Liberation Mono"}));
    EXPECT_EQ(find("cmdTest")->font().family(), families.front());
    EXPECT_EQ(find("txtNazwa")->font().family(), families.back());
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
            const QImage paper = image.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor);
            const QRect ink = QRegion(QBitmap::fromImage(paper)).boundingRect();
            EXPECT_TRUE(box.contains(ink)) << caption << flags << " to " << ink.right();
            EXPECT_GT(ink.width(), box.width() * 3 / 4) << caption << flags;
        }
}

} // namespace
} // namespace dorva::test

#include "qt/czcionki.h"

#include <QFontDatabase>
#include <QResource>

namespace dorva {
namespace {

constexpr int FONT_PIXELS = 11;
constexpr int FONT_STALY_PIXELS = 13; // a character takes 0.6 of it

QFont ofFamily(const char* family, int pixels) {
    QFont font(family);
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

} // namespace

void loadFonts() {
    for (const char* name : {"LiberationSans-Regular", "LiberationSans-Bold", "LiberationMono-Regular"}) {
        const QResource font(QString(":/czcionki/%1.ttf").arg(name));
        QFontDatabase::addApplicationFontFromData(
            QByteArray::fromRawData(reinterpret_cast<const char*>(font.data()), font.size()));
    }
}

QFont fontOkna() {
    return ofFamily("Liberation Sans", FONT_PIXELS);
}

QFont fontFigury() {
    QFont font = fontOkna();
    font.setBold(true);
    return font;
}

QFont fontStaly() {
    QFont font = ofFamily("Liberation Mono", FONT_STALY_PIXELS);
    font.setFixedPitch(true);
    return font;
}

} // namespace dorva

#include "qt/konwersje.h"

#include <QFile>
#include <QWidget>

#include <algorithm>

namespace dorva {
namespace {

constexpr char16_t SYMBOLE_STEROWANIA = 0x2400; // pictures of the control codes
constexpr char16_t SYMBOL_DEL = 0x2421;
constexpr Bajt KOD_DEL = 127;

// What a box shows for a byte.
QChar signOf(char c) {
    const auto code = static_cast<Bajt>(c);
    if (code < ' ')
        return static_cast<char16_t>(SYMBOLE_STEROWANIA + code);
    return code == KOD_DEL ? SYMBOL_DEL : toUnicode(code);
}

Bajt byteOf(char32_t sign) {
    if (sign >= SYMBOLE_STEROWANIA && sign < SYMBOLE_STEROWANIA + U' ')
        return static_cast<Bajt>(sign - SYMBOLE_STEROWANIA);
    if (sign == SYMBOL_DEL)
        return KOD_DEL;
    return sign < ' ' || sign == KOD_DEL ? Bajt{' '} : fromUnicode(sign);
}

} // namespace

QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), utf8.size());
}

QString toQString(const Tekst& tekst) {
    QString result(tekst.size(), Qt::Uninitialized);
    std::transform(tekst.znaki.begin(), tekst.znaki.end(), result.begin(), signOf);
    return result;
}

Tekst fromShown(const QString& shown) {
    Tekst tekst;
    for (char32_t c : shown.toUcs4())
        tekst.znaki += static_cast<char>(byteOf(c));
    return tekst;
}

QString nameOfPath(const std::filesystem::path& path) {
    return QFile(path).fileName();
}

std::filesystem::path toPath(const QString& name) {
    return QFile(name).filesystemFileName();
}

QColor toQColor(Rgb c) {
    return {c.r, c.g, c.b};
}

void setColour(QWidget* widget, QPalette::ColorRole role, const QColor& colour) {
    if (widget->palette().color(role) == colour)
        return;
    QPalette palette = widget->palette();
    palette.setColor(role, colour);
    widget->setPalette(palette);
}

} // namespace dorva

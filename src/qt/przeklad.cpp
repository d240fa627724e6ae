#include "qt/przeklad.h"

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

} // namespace

QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString toQString(const Tekst& tekst) {
    QString result(static_cast<qsizetype>(tekst.size()), Qt::Uninitialized);
    std::transform(tekst.znaki.begin(), tekst.znaki.end(), result.begin(), signOf);
    return result;
}

Tekst fromQString(const QString& text) {
    Tekst result;
    for (char32_t c : text.toUcs4()) {
        if (c >= SYMBOLE_STEROWANIA && c < SYMBOLE_STEROWANIA + ' ')
            result.znaki += static_cast<char>(c - SYMBOLE_STEROWANIA);
        else if (c < ' ' || c == KOD_DEL)
            result.znaki += ' ';
        else
            result.znaki += static_cast<char>(c == SYMBOL_DEL ? KOD_DEL : fromUnicode(c));
    }
    return result;
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

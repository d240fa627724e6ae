#include "qt/kontrolki_okna.h"

#include "qt/konwersje.h"

#include <cstdio>
#include <cstdlib>

namespace dorva {
namespace {

QString nameOf(std::string_view name, int index) {
    return index < 0 ? toQString(name) : toQString(name) + '(' + QString::number(index) + ')';
}

} // namespace

KontrolkiOkna::KontrolkiOkna(const std::vector<Kontrolka>& katalog, QWidget* window) : window_(window) {
    for (const Kontrolka& k : katalog) {
        QWidget* widget = k.make(k, k.container.empty() ? window : get<QWidget>(k.container));
        widget->setObjectName(nameOf(k.name, k.index));
        widget->setGeometry(pixels(k.left), pixels(k.top), pixels(k.width), pixels(k.height));
        widget->setToolTip(toQString(k.tooltip));
        widget->setEnabled(k.enabled);
        if (!k.visible)
            widget->hide();
    }
}

void KontrolkiOkna::setTabOrder(const std::vector<std::string_view>& names) const {
    QWidget* last = nullptr;
    for (std::string_view name : names)
        for (QWidget* widget : getAll<QWidget>(name)) {
            if (last)
                QWidget::setTabOrder(last, widget);
            last = widget;
        }
}

QWidget* KontrolkiOkna::find(const QWidget* within, std::string_view name, int index) {
    return within->findChild<QWidget*>(nameOf(name, index));
}

void KontrolkiOkna::endWithoutControl(std::string_view name, int index) {
    std::fprintf(stderr, "Planszownik: w oknie nie ma takiej kontrolki: %s\n", qUtf8Printable(nameOf(name, index)));
    std::_Exit(EXIT_FAILURE);
}

} // namespace dorva

// The controls of the window, built from the catalogue and found by their names.
#pragma once

#include "qt/katalog.h"

#include <QWidget>

#include <string_view>
#include <vector>

namespace dorva {

// Asking for a control that isn't in the catalogue, or is of another kind there, is a bug: the program ends at once and
// prints the name.
class KontrolkiOkna {
public:
    // Makes the widgets of a catalogue in `window`.
    KontrolkiOkna(const std::vector<Kontrolka>& katalog, QWidget* window);

    // The widget of a control.
    template <typename Widget> Widget* get(std::string_view name, int index = -1) const {
        return checked<Widget>(find(window_, name, index), name, index);
    }

    // The widgets of a control array, in order; of a single control just that one.
    template <typename Widget> std::vector<Widget*> getAll(std::string_view name) const {
        std::vector<Widget*> all;
        const QWidget* container = window_;
        for (int index = 0; QWidget* widget = find(container, name, index); ++index) {
            all.push_back(checked<Widget>(widget, name, index));
            container = widget->parentWidget(); // of the whole array
        }
        return all.empty() ? std::vector{get<Widget>(name)} : all;
    }

    // Lets the Tab key visit these controls in this order.
    void setTabOrder(const std::vector<std::string_view>& names) const;

private:
    [[nodiscard]] static QWidget* find(const QWidget* within, std::string_view name, int index);

    template <typename Widget> static Widget* checked(QWidget* found, std::string_view name, int index) {
        auto* widget = dynamic_cast<Widget*>(found);
        if (!widget)
            endWithoutControl(name, index);
        return widget;
    }
    [[noreturn]] static void endWithoutControl(std::string_view name, int index);

    QWidget* window_;
};

} // namespace dorva

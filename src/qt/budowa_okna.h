// Builds the window: the widgets of the catalogue, which are known by the names of their controls.
#pragma once

#include "qt/katalog.h"

#include <QWidget>

#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace dorva {

// A control that is asked for but not in the catalogue, or is of another kind there, is a fault of the program: it ends
// at once, with the name on standard error.
class KontrolkiOkna {
public:
    // Makes the widgets of a catalogue in `window`.
    KontrolkiOkna(const std::vector<Kontrolka>& katalog, QWidget* window);

    // The widget of a control.
    template <typename Widget> Widget* get(std::string_view name, int index = -1) const {
        const auto found = widgets_.find({name, index});
        auto* widget = found == widgets_.end() ? nullptr : dynamic_cast<Widget*>(found->second);
        if (!widget)
            endWithoutControl(name, index);
        return widget;
    }

    // The widgets of a control array, in order; of a single control that alone.
    template <typename Widget> std::vector<Widget*> getAll(std::string_view name) const {
        std::vector<Widget*> all;
        for (auto it = widgets_.lower_bound({name, -1}); it != widgets_.end() && it->first.first == name; ++it)
            all.push_back(get<Widget>(name, it->first.second));
        if (all.empty())
            endWithoutControl(name, -1);
        return all;
    }

    // Lets the Tab key visit these controls in this order.
    void setTabOrder(const std::vector<std::string_view>& names) const;

private:
    [[noreturn]] static void endWithoutControl(std::string_view name, int index);

    std::map<std::pair<std::string_view, int>, QWidget*> widgets_; // by name and index
};

} // namespace dorva

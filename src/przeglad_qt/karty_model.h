// The game on the sheet as Qt's views see it.
#pragma once

#include "przeglad/gra.h"

#include <QAbstractListModel>
#include <QStringList>

#include <array>

namespace dorva {

class KartyModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const Gra& gra() const { return gra_; }
    void setGra(const Gra&);
    [[nodiscard]] const QStringList& ostrzezenia(int place) const { return ostrzezenia_[place]; }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex&,
                                int role) const override; // a card in words; its warnings as tooltip
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex&) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

private:
    Gra gra_;
    std::array<QStringList, ETAPY_COUNT> ostrzezenia_;
};

} // namespace dorva

#include "przeglad_qt/karty_model.h"

#include "przeglad/ostrzezenia.h"
#include "qt/konwersje.h"

#include <string>

namespace dorva {

void KartyModel::setGra(const Gra& gra) {
    gra_ = gra;
    for (int place = 0; const auto& teksty : listOstrzezenia(gra_)) {
        ostrzezenia_[place].clear();
        for (const std::string& text : teksty)
            ostrzezenia_[place] += toQString(text);
        ++place;
    }
    emit dataChanged(index(0), index(ETAPY_COUNT - 1));
}

int KartyModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ETAPY_COUNT;
}

QVariant KartyModel::data(const QModelIndex& index, int role) const {
    const int place = index.row();
    const Karta& karta = gra_.karty[place];
    if (role == Qt::DisplayRole)
        return QString("%1. %2").arg(place + 1).arg(karta.image.empty() ? "" : toQString(nazwaOf(karta.image)));
    if (role != Qt::ToolTipRole)
        return {};
    return ostrzezenia_[place].join('\n');
}

Qt::ItemFlags KartyModel::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}

} // namespace dorva

// The list of files in Qt's own file dialog, in Polish.
#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

class QFileDialog;

namespace dorva {

// Folders first, names by the Polish alphabet, numbers in them by their value (DETAP.2 before DETAP.10); sizes, dates
// and headings in Polish, whatever the system's language.
class ListaPlikow : public QSortFilterProxyModel {
public:
    explicit ListaPlikow(QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex&, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation, int role) const override;

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QCollator collator_{QLocale(QLocale::Polish)};
};

// Gives the list to a dialog. Its columns are as wide as what they hold; that of the file types is hidden, since the
// system takes DETAP.1 for a manual page. A desktop's own dialog stays as it is.
void showLista(QFileDialog&);

} // namespace dorva

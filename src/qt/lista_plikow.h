// The list of files in the toolkit's own file dialog, as this program's users read it.
#pragma once

#include <QSortFilterProxyModel>

class QFileDialog;

namespace dorva {

// Folders first, numbers in names by their value (DETAP.2 before DETAP.10); sizes, dates and headings in Polish,
// whatever the system's language.
class ListaPlikow : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    [[nodiscard]] QVariant data(const QModelIndex&, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation, int role) const override;

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

// Gives the list to a dialog, in columns as wide as what they hold and without that of file kinds: to the system a
// stage is a manual page. A desktop's own dialog stays as it is.
void showLista(QFileDialog&);

// Whether a name comes before another one: by letters, without regard to case, and by the value of numbers.
bool isNameBefore(const QString& left, const QString& right);

} // namespace dorva

#include "register/RegisterPosition.h"

#include "register/RegisterModel.h"
#include "register/RegisterTableView.h"

RegisterPosition RegisterPosition::of(const RegisterTableView &view, const RegisterModel &model)
{
    RegisterPosition position;
    const QModelIndex current = view.currentIndex();
    position.m_current = placeOf(current, model);
    position.m_currentColumn = qMax(current.column(), 0);
    position.m_top = placeOf(view.indexAt(QPoint(0, 0)), model);
    return position;
}

void RegisterPosition::restore(RegisterTableView &view, const RegisterModel &model) const
{
    const QModelIndex cursor = model.index(findRow(m_current, model), m_currentColumn);
    if (cursor.isValid())
        view.setCurrentIndex(cursor);
    const int top = findRow(m_top, model);
    if (top >= 0)
        view.scrollTo(model.index(top, 0), QAbstractItemView::PositionAtTop);
    if (cursor.isValid())
        view.scrollTo(cursor, QAbstractItemView::EnsureVisible);
}

RegisterPosition::Place RegisterPosition::placeOf(const QModelIndex &index,
                                                  const RegisterModel &model)
{
    if (!index.isValid())
        return {};
    const RegisterRow *row = model.rowAt(index.row());
    return {row ? row->id : QString(), index.row()};
}

int RegisterPosition::findRow(const Place &place, const RegisterModel &model)
{
    const int count = model.rowCount();
    for (int row = 0; row < count && !place.transactionId.isEmpty(); ++row) {
        const RegisterRow *stored = model.rowAt(row);
        if (stored && stored->id == place.transactionId)
            return row;
    }
    return place.row < 0 ? -1 : qMin(place.row, count - 1);
}

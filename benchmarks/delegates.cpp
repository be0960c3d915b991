#include "benchmarks.h"

#include <Vellum/CheckAndExpandDelegate>
#include <Vellum/CusItemDataRole>
#include <Vellum/LongTextTipDelegate>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QImage>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>

namespace {

/// Cells of a camera list, every other one too long for its column; a check for each row.
class CellModel : public QAbstractTableModel
{
public:
    CellModel(int rows, int columns)
        : m_rows(rows)
        , m_columns(columns)
    {
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_columns;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        switch (role) {
        case Qt::DisplayRole:
            return (index.row() + index.column()) % 2 == 0 ? m_short : m_long;
        case Qt::CheckStateRole:
            return m_columns > 1 ? QVariant() : QVariant(index.row() % 3);
        case CusItemDataRole::RoleHasChildren:
            return m_columns == 1;
        case CusItemDataRole::RoleExpanded:
            return index.row() % 2 == 0;
        default:
            return {};
        }
    }

private:
    const int m_rows;
    const int m_columns;
    const QString m_short = QStringLiteral("North gate");
    const QString m_long = QStringLiteral("Loading bay, east side, camera 12");
};

void paintAll(QWidget *viewport, benchmark::State &state)
{
    QImage image(viewport->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        viewport->render(&image);
}

template <typename Delegate>
void repaintCells(benchmark::State &state)
{
    CellModel model(30, 12);
    QTableView view;
    Delegate delegate;
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.horizontalHeader()->setDefaultSectionSize(100);
    view.verticalHeader()->setDefaultSectionSize(30);
    view.resize(1260, 940);
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.show();
    paintAll(view.viewport(), state);
}

template <typename Delegate>
void repaintRows(benchmark::State &state)
{
    CellModel model(40, 1);
    QListView view;
    Delegate delegate;
    view.setModel(&model);
    view.setItemDelegate(&delegate);
    view.resize(200, 1210);
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.show();
    paintAll(view.viewport(), state);
}

const BenchmarkPair cells{"repaint of 30 by 12 LongTextTipDelegate cells", 0.95,
                          repaintCells<LongTextTipDelegate>, repaintCells<QStyledItemDelegate>};
const BenchmarkPair rows{"repaint of 40 rows with check, arrow and text", 1.3,
                         repaintRows<CheckAndExpandDelegate>, repaintRows<QStyledItemDelegate>};

} // namespace

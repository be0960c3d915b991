#include "support/guardedtest.h"

#include <Vellum/AnchorPointNode>
#include <Vellum/BasicListModel>
#include <Vellum/CusNavigateData>
#include <Vellum/KeyValueData>
#include <Vellum/ListNode>
#include <Vellum/MulListNode>
#include <Vellum/SelectItemListModel>

#include <QAbstractItemModelTester>
#include <QtTest>

#include <random>

namespace {

/// Equal by id; the tail is what equality leaves out.
struct Camera
{
    int id;
    int tail;
    friend bool operator==(const Camera &a, const Camera &b) { return a.id == b.id; }
    friend uint qHash(const Camera &camera) { return uint(camera.id % 3); }
};
using Cameras = QList<Camera>;

/// Compares by itself, so that the hash of its base tells nothing.
struct Shop : public Camera
{
    friend bool operator==(const Shop &a, const Shop &b) { return a.tail == b.tail; }
};

bool inOrder(const Camera &left, const Camera &right)
{
    return left.id != right.id ? left.id < right.id : left.tail < right.tail;
}

void share(const Cameras &all, Cameras &show, Cameras &filtered)
{
    for (const Camera &row : all)
        (row.id % 2 ? show : filtered) += row;
}

template <typename List>
QString textOf(const List &rows)
{
    QStringList texts;
    for (const auto &row : rows)
        texts += QStringLiteral("%1.%2").arg(row.id).arg(row.tail);
    return texts.join(QLatin1Char(' '));
}

/// The invalid index and the rows "below" a row answer as in any model, which the tester insists
/// on.
template <typename Base>
class Proper : public Base
{
public:
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : Base::rowCount(parent);
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? Base::flags(index) : Qt::NoItemFlags;
    }
};

template <typename Row>
class Rows : public BasicListModel<Row>
{
public:
    QVariant data(const QModelIndex &index, int role) const override
    {
        Row row;
        return role == Qt::DisplayRole && this->getIndexData(index, row) ? QVariant(row.id)
                                                                         : QVariant();
    }
    QString state() const
    {
        return textOf(this->showData) + QLatin1Char('|') + textOf(this->filteredData)
            + QLatin1Char('|') + textOf(this->allData);
    }
};

/// The operations once more, in the plainest way.
struct Oracle
{
    Cameras show, filtered, all;
    bool sorted = false;
    int resets = 0;

    void sortAndReset()
    {
        if (sorted)
            std::stable_sort(show.begin(), show.end(), inOrder);
        ++resets;
    }
    void add(const Cameras &rows, bool unique)
    {
        for (const Camera &row : rows) {
            if (!unique || !show.contains(row))
                show += row;
            if (!unique || !all.contains(row))
                all += row;
        }
        sortAndReset();
    }
    void upsert(const Cameras &rows)
    {
        for (const Camera &row : rows) {
            if (show.contains(row))
                show[show.indexOf(row)] = row;
            else {
                show += row;
                if (!all.contains(row))
                    all += row;
                sortAndReset();
            }
        }
    }
    QString state() const
    {
        return textOf(show) + QLatin1Char('|') + textOf(filtered) + QLatin1Char('|') + textOf(all);
    }
};

void oneStep(std::mt19937 &random, Rows<Camera> &model, Oracle &oracle)
{
    const auto upTo = [&random](int end) { return int(random() % unsigned(end)); };
    const auto newRow = [&upTo] { return Camera{upTo(12), upTo(4)}; };
    const Camera row = newRow();
    Cameras rows;
    for (int i = upTo(8); i > 0; --i)
        rows += newRow();
    const bool flag = upTo(2) == 1;
    const int at = upTo(oracle.show.size() + 3) - 1;
    const int last = oracle.show.size();
    const bool there = at >= 0 && at < last;
    switch (upTo(10)) {
    case 0:
        model.addListModelData(row, flag);
        return oracle.add({row}, flag);
    case 1:
        model.addListModelData(rows, flag);
        return oracle.add(rows, flag);
    case 2:
        model.insertListModelData(row, at);
        oracle.show.insert(there ? at : last, row);
        return oracle.sortAndReset();
    case 3:
        model.insertListModelDataWithUpdate(rows);
        return oracle.upsert(rows);
    case 4:
        model.deleteListModelData(row);
        oracle.show.removeOne(row);
        return void(++oracle.resets);
    case 5:
        if (flag) {
            model.setListModelData(model.getRangeData(at, 5));
            oracle.all = oracle.show.mid(at, 5);
            oracle.filtered.clear();
        } else {
            model.setShowModelData(model.getRangeData(at, 5));
        }
        oracle.show = oracle.show.mid(at, 5);
        return oracle.sortAndReset();
    case 6:
        model.fiterModelData(share);
        oracle.show.clear();
        oracle.filtered.clear();
        share(oracle.all, oracle.show, oracle.filtered);
        return oracle.sortAndReset();
    case 7:
        QCOMPARE(model.setIndexData(model.index(at), row), there);
        if (there)
            oracle.show[at] = row;
        return;
    case 8:
        QCOMPARE(model.removeRows(at, 3), at + 3 <= last);
        for (int i = at; i < at + 3 && at + 3 <= last; ++i) {
            if (i >= 0 && i < oracle.show.size())
                oracle.show.removeAt(i);
        }
        oracle.resets += at + 3 <= last;
        return;
    default:
        oracle.sorted = flag;
        model.setSortCallback(flag ? inOrder : Rows<Camera>::RowOrder());
    }
}

Cameras cameras(int count)
{
    Cameras rows;
    for (int i = 0; i < count; ++i)
        rows += Camera{i, 0};
    return rows;
}

SelectItemBaseInfo item(const char *id, Qt::CheckState state)
{
    return {QString::fromLatin1(id), QString::fromLatin1(id).toUpper(), state, 7};
}

} // namespace

class TestBasicListModel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithAPlainListWhateverIsDone()
    {
        std::mt19937 random(20201);
        Proper<Rows<Camera>> model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        Oracle oracle;
        for (int step = 0; step < 2000; ++step) {
            oneStep(random, model, oracle);
            QCOMPARE(model.state(), oracle.state());
            QCOMPARE(resets.count(), oracle.resets);
        }
    }

    void uniqueRowsAreFoundByTheirOwnEquality()
    {
        Rows<Shop> model;
        model.addListModelData(QList<Shop>{{{1, 7}}, {{2, 7}}, {{3, 8}}}, true);
        QCOMPARE(model.state(), QStringLiteral("1.7 3.8||1.7 3.8"));
        static_assert(vellum::hasRowHash<Camera> && vellum::hasRowHash<ListNode<Camera>>);
    }

    void rangesThatAreNotThereRemoveNothing()
    {
        Rows<Camera> model;
        model.setListModelData(cameras(5));
        QVERIFY(!model.removeRows(3, 3) && !model.removeRows(INT_MAX, INT_MAX));
        QVERIFY(model.removeRows(INT_MIN, INT_MAX) && model.removeRows(9, INT_MIN));
        QCOMPARE(model.state(), QStringLiteral("0.0 1.0 2.0 3.0 4.0||0.0 1.0 2.0 3.0 4.0"));
        QVERIFY(model.removeRows(0, 3));
        QCOMPARE(model.state(), QStringLiteral("1.0 3.0||0.0 1.0 2.0 3.0 4.0"));
        QCOMPARE(int(model.flags(QModelIndex())), 0x31);
    }

    void searchAndFilterShareTheRowsOut()
    {
        Rows<Camera> model;
        model.setListModelData(cameras(2));
        QString duringReset;
        connect(&model, &QAbstractItemModel::modelReset, this,
                [&] { duringReset = model.state(); });
        model.deleteListModelData({1, 0});
        model.setSearchThreadModelData(model.getAllModelDataContainFilter());
        QCOMPARE(duringReset, QStringLiteral("||0.0 1.0"));
        model.fiterModelData({});
        model.fiterModelData([](const Cameras &all, Cameras &show, Cameras &filtered) {
            show += all.last();
            filtered += all.first();
        });
        QCOMPARE(duringReset, QStringLiteral("1.0||0.0 1.0"));
        QCOMPARE(model.state(), QStringLiteral("1.0|0.0|0.0 1.0"));
    }

    void ordersThatContradictThemselvesKeepEveryRow()
    {
        std::mt19937 random(3);
        const QList<std::function<bool(const Camera &, const Camera &)>> orders{
            [](const Camera &, const Camera &) { return true; },
            [](const Camera &left, const Camera &right) { return left.id <= right.id; },
            [&random](const Camera &, const Camera &) { return random() % 2 == 1; },
        };
        for (const auto &order : orders) {
            Rows<Camera> model;
            model.setSortCallback(order);
            model.setListModelData(cameras(500));
            model.insertListModelDataWithUpdate({{500, 0}, {501, 0}});
            Cameras rows = model.getAllModelShowData();
            std::sort(rows.begin(), rows.end(), inOrder);
            QCOMPARE(textOf(rows), textOf(cameras(502)));
        }
    }

    void mayBeDeletedByWhatItCalls()
    {
        QPointer<Rows<Camera>> model;
        const auto die = [&model] {
            delete model;
            return true;
        };
        const QList<std::function<void()>> calls{
            [&] {
                model->addListModelData(Camera{9, 0}, true);
            },
            [&] { model->insertListModelDataWithUpdate(cameras(9)); },
            [&] { model->setListModelData(cameras(9)); },
            [&] { model->fiterModelData(share); },
        };
        for (const auto &call : calls) {
            for (const bool inReset : {true, false}) {
                model = new Rows<Camera>;
                model->setListModelData(cameras(5));
                if (inReset)
                    connect(model, &QAbstractItemModel::modelReset, this, die);
                else
                    model->setSortCallback([&](const Camera &, const Camera &) { return die(); });
                call();
                QVERIFY(!model);
            }
        }
    }

    void seesWhatSlotsAndOrdersChange()
    {
        Rows<Camera> model;
        connect(&model, &QAbstractItemModel::modelReset, this, [&model] {
            if (model.state().startsWith(QLatin1Char('1')))
                model.deleteListModelData({1, 0});
        });
        model.insertListModelDataWithUpdate({{1, 0}, {2, 0}, {1, 5}, {2, 5}});
        QCOMPARE(model.state(), QStringLiteral("2.5 1.5||1.0 2.0"));

        int calls = 0;
        model.setSortCallback([&](const Camera &left, const Camera &right) {
            if (++calls == 1)
                model.clearListModelData(true);
            return left.id < right.id;
        });
        model.setListModelData(cameras(9));
        QCOMPARE(model.state(), QStringLiteral("||"));
    }

    void takesAnOrderThatASlotSets()
    {
        Rows<Camera> model;
        model.setListModelData({{3, 0}, {1, 0}});
        connect(&model, &QAbstractItemModel::modelReset, this,
                [&model] { model.setSortCallback(inOrder); });
        model.insertListModelDataWithUpdate({{4, 0}, {2, 0}, {1, 5}, {3, 5}});
        QCOMPARE(textOf(model.getAllModelShowData()), QStringLiteral("1.5 2.0 3.5 4.0"));
    }

    void checkListAnswersItsRoles()
    {
        Proper<SelectItemListModel> model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setListModelData({item("a", Qt::Unchecked), item("b", Qt::Checked)});
        const QModelIndex second = model.index(1);
        QCOMPARE(model.findIndexByShowText(QStringLiteral("B")), second);
        QVERIFY(!model.findIndexByShowText(QStringLiteral("b")).isValid());
        QCOMPARE(second.data().toString(), QStringLiteral("B"));
        QCOMPARE(second.data(Qt::CheckStateRole), QVariant(Qt::Checked));
        QCOMPARE(second.data(256).value<SelectItemBaseInfo>().userData.toInt(), 7);
        QCOMPARE(model.data({}, Qt::CheckStateRole), QVariant(0));
        QVERIFY(!model.data({}).isValid() && !model.data({}, 256).isValid());
        QVERIFY(!second.data(Qt::ToolTipRole).isValid());
        QCOMPARE(int(model.SelectItemListModel::flags({})), 29);
    }

    void checkListStoresChecks()
    {
        QPointer<SelectItemListModel> model = new SelectItemListModel;
        model->setListModelData({item("a", Qt::Unchecked), item("b", Qt::Checked)});
        int checks = 0;
        model->registerDealWithCheckCb([&checks] { ++checks; });
        QVERIFY(!model->setData(model->index(0), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(!model->setData(model->index(0), QStringLiteral("x"), Qt::EditRole));
        QVERIFY(!model->setData({}, Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(checks, 1);
        QCOMPARE(model->getSelectedIndexs().size(), 2);

        const auto selected = [&model](const QStringList &ids, Qt::CheckState state) {
            model->setSelectIndexs(ids, state);
            QString rows;
            const QList<QModelIndex> indexes = model->getSelectedIndexs();
            for (const QModelIndex &index : indexes)
                rows += index.data().toString();
            return rows;
        };
        const QStringList ids{QStringLiteral("a"), QStringLiteral("B")};
        QCOMPARE(selected(ids, Qt::Checked), QStringLiteral("A"));
        QCOMPARE(selected(ids, Qt::PartiallyChecked), QStringLiteral("B"));
        QCOMPARE(selected({}, Qt::Checked), QString());
        QCOMPARE(selected({}, Qt::Unchecked), QStringLiteral("AB"));
        model->registerDealWithCheckCb([&model] { delete model; });
        QVERIFY(!model->setData(model->index(0), Qt::Unchecked, Qt::CheckStateRole) && !model);
    }

    void recordsCompareAsSaidAndAreKnownByName()
    {
        SelectItemBaseInfo other = item("a", Qt::Checked);
        other.userData = 8;
        QVERIFY(other == item("a", Qt::Checked) && other != item("a", Qt::Unchecked));
        const MulListNode lower(QStringLiteral("id"), QStringLiteral("text"), true);
        const MulListNode upper(QStringLiteral("ID"), QStringLiteral("text"), true);
        QVERIFY(lower != upper && !(lower < upper) && !(upper < lower));
        CusNavigateData page;
        page.naviText = QStringLiteral("Live view");
        QVERIFY(ListNode<CusNavigateData>(page, {1, 2}) == ListNode<CusNavigateData>());

        const AnchorPointNode anchor{1, QStringLiteral("Cameras")};
        QVERIFY((anchor != AnchorPointNode{2, anchor.anchorText})
                && (anchor != AnchorPointNode{1, {}}));

        const SelectItemListModel model;
        for (const char *name : {"keyValueData", "keyValueData&"})
            QCOMPARE(QMetaType::type(name), qMetaTypeId<KeyValueData>());
        for (const char *name : {"SelectItemBaseInfo", "NavigationData", "QList<TreeMulData>",
                                 "ListNode<CusNavigateData>"})
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
    }
};

QTEST_GUILESS_MAIN(TestBasicListModel)
#include "tst_basiclistmodel.moc"

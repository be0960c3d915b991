#include "support/guardedtest.h"

#include <Vellum/AnchorPointNode>
#include <Vellum/BasicListModel>
#include <Vellum/CusItemDataRole>
#include <Vellum/CusNavigateData>
#include <Vellum/KeyValueData>
#include <Vellum/ListNode>
#include <Vellum/MulListNode>
#include <Vellum/NavigationData>
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
};
bool operator==(const Camera &left, const Camera &right)
{
    return left.id == right.id;
}
struct HashedCamera : public Camera
{
};
uint qHash(const HashedCamera &camera)
{
    return uint(camera.id % 3); // with collisions
}

template <typename Row>
bool inOrder(const Row &left, const Row &right)
{
    return left.id != right.id ? left.id < right.id : left.tail < right.tail;
}

template <typename Row>
QString textOf(const QList<Row> &rows)
{
    QStringList texts;
    for (const Row &row : rows)
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
template <typename Row>
struct Oracle
{
    QList<Row> show, filtered, all;
    bool sorted = false;
    int resets = 0;

    void sortAndReset()
    {
        if (sorted)
            std::stable_sort(show.begin(), show.end(), inOrder<Row>);
        ++resets;
    }
    void add(const QList<Row> &rows, bool unique)
    {
        for (const Row &row : rows) {
            if (!unique || !show.contains(row))
                show += row;
            if (!unique || !all.contains(row))
                all += row;
        }
        sortAndReset();
    }
    void upsert(const QList<Row> &rows)
    {
        for (const Row &row : rows) {
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
    void filter()
    {
        show.clear();
        filtered.clear();
        for (const Row &row : all)
            (row.id % 2 ? show : filtered) += row;
        sortAndReset();
    }
    bool removeRows(int row, int count)
    {
        if (row + count > show.size())
            return false;
        for (int i = row; i < row + count; ++i) {
            if (i >= 0 && i < show.size())
                show.removeAt(i);
        }
        ++resets;
        return true;
    }
    QString state() const
    {
        return textOf(show) + QLatin1Char('|') + textOf(filtered) + QLatin1Char('|') + textOf(all);
    }
};

template <typename Row>
void oneStep(std::mt19937 &random, Rows<Row> &model, Oracle<Row> &oracle)
{
    const auto upTo = [&random](int end) { return int(random() % unsigned(end)); };
    const auto newRow = [&upTo] {
        Row row;
        row.id = upTo(12);
        row.tail = upTo(4);
        return row;
    };
    const Row row = newRow();
    QList<Row> rows;
    for (int i = upTo(8); i > 0; --i)
        rows += newRow();
    const bool unique = upTo(2) == 1;
    const int at = upTo(oracle.show.size() + 3) - 1;
    switch (upTo(14)) {
    case 0:
        model.addListModelData(row, unique);
        return oracle.add({row}, unique);
    case 1:
        model.addListModelData(rows, unique);
        return oracle.add(rows, unique);
    case 2:
        model.addShowModelData(row);
        oracle.show += row;
        oracle.all += row;
        ++oracle.resets;
        return;
    case 3:
        model.addFilterModelData(row);
        oracle.filtered += row;
        oracle.all += row;
        ++oracle.resets;
        return;
    case 4:
        model.insertListModelData(row, at);
        oracle.show.insert(at < 0 || at >= oracle.show.size() ? oracle.show.size() : at, row);
        return oracle.sortAndReset();
    case 5:
        model.insertListModelDataWithUpdate(rows);
        return oracle.upsert(rows);
    case 6:
        model.deleteListModelData(row);
        oracle.show.removeOne(row);
        ++oracle.resets;
        return;
    case 7:
        model.setListModelData(rows);
        oracle.show = oracle.all = rows;
        oracle.filtered.clear();
        return oracle.sortAndReset();
    case 8:
        model.setShowModelData(model.getRangeData(at, 5));
        oracle.show = oracle.show.mid(at, 5);
        return oracle.sortAndReset();
    case 9:
        model.fiterModelData([](const QList<Row> &all, QList<Row> &show, QList<Row> &filtered) {
            for (const Row &any : all)
                (any.id % 2 ? show : filtered) += any;
        });
        return oracle.filter();
    case 10:
        QCOMPARE(model.setIndexData(model.index(at), row), at >= 0 && at < oracle.show.size());
        if (at >= 0 && at < oracle.show.size())
            oracle.show[at] = row;
        return;
    case 11:
        model.updateListModelData(row);
        if (oracle.show.contains(row))
            oracle.show[oracle.show.indexOf(row)] = row;
        return;
    case 12:
        QCOMPARE(model.removeRows(at, unique), oracle.removeRows(at, unique));
        return;
    default:
        oracle.sorted = unique;
        model.setSortCallback(unique ? inOrder<Row> : typename Rows<Row>::RowOrder());
    }
}

template <typename Row>
void compareWithOracle()
{
    std::mt19937 random(20201);
    Proper<Rows<Row>> model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    Oracle<Row> oracle;
    for (int step = 0; step < 3000; ++step) {
        oneStep(random, model, oracle);
        QCOMPARE(model.state(), oracle.state());
        QCOMPARE(resets.count(), oracle.resets);
    }
}

QList<Camera> cameras(int count)
{
    QList<Camera> rows;
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
        compareWithOracle<Camera>();
        compareWithOracle<HashedCamera>();
        static_assert(vellum::hasRowHash<HashedCamera> && !vellum::hasRowHash<Camera>);
    }

    void removesEverySecondRowOfARange_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QString>("left");
        const QString all = QStringLiteral("0.0 1.0 2.0 3.0 4.0");
        QTest::newRow("three") << 0 << 3 << true << QStringLiteral("1.0 3.0");
        QTest::newRow("all") << 0 << 5 << true << QStringLiteral("1.0 3.0");
        QTest::newRow("none") << 5 << 0 << true << all;
        QTest::newRow("past the end") << 3 << 3 << false << all;
        QTest::newRow("from before the start")
            << -2 << 3 << true << QStringLiteral("1.0 2.0 3.0 4.0");
        QTest::newRow("overflow") << INT_MAX << INT_MAX << false << all;
        QTest::newRow("far before") << INT_MIN << INT_MAX << true << all;
        QTest::newRow("negative count") << 9 << INT_MIN << true << all;
    }

    void removesEverySecondRowOfARange()
    {
        QFETCH(int, row);
        QFETCH(int, count);
        QFETCH(QString, left);
        Rows<Camera> model;
        model.setListModelData(cameras(5));
        QTEST(model.removeRows(row, count), "result");
        QCOMPARE(textOf(model.getAllModelShowData()), left);
        QCOMPARE(model.getAllModeDataCount(), 5);
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
        model.fiterModelData(
            [](const QList<Camera> &all, QList<Camera> &show, QList<Camera> &filtered) {
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
            QList<Camera> rows = model.getAllModelShowData();
            std::sort(rows.begin(), rows.end(), inOrder<Camera>);
            QCOMPARE(textOf(rows), textOf(cameras(502)));
        }
    }

    void mayBeDeletedByWhatItCalls()
    {
        using Model = Rows<Camera>;
        const auto filter = [](const QList<Camera> &all, QList<Camera> &show, QList<Camera> &) {
            show = all;
        };
        const QList<std::function<void(Model *)>> operations{
            [](Model *model) {
                model->addListModelData(Camera{9, 0}, true);
            },
            [](Model *model) { model->insertListModelDataWithUpdate(cameras(9)); },
            [](Model *model) { model->setListModelData(cameras(9)); },
            [&filter](Model *model) { model->fiterModelData(filter); },
        };
        for (const auto &operate : operations) {
            for (const bool inReset : {true, false}) {
                QPointer<Model> model = new Model;
                model->setListModelData(cameras(5));
                const auto die = [&model] { delete model; };
                if (inReset)
                    connect(model, &QAbstractItemModel::modelReset, this, die);
                else
                    model->setSortCallback([&die](const Camera &left, const Camera &right) {
                        die();
                        return left.id > right.id;
                    });
                operate(model);
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

    void checkListAnswersItsRoles()
    {
        Proper<SelectItemListModel> model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setListModelData({item("a", Qt::Unchecked), item("b", Qt::Checked)});
        QCOMPARE(model.data(model.index(1)).toString(), QStringLiteral("B"));
        QCOMPARE(model.data(model.index(1), Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(model.data(model.index(1), CusItemDataRole::RoleRecord)
                     .value<SelectItemBaseInfo>()
                     .userData.toInt(),
                 7);
        QCOMPARE(model.data({}, Qt::CheckStateRole), QVariant(0));
        QVERIFY(!model.data({}).isValid() && !model.data({}, Qt::UserRole).isValid());
        QVERIFY(!model.data(model.index(0), Qt::ToolTipRole).isValid());
        QCOMPARE(int(model.SelectItemListModel::flags({})), 29);
        QCOMPARE(model.findIndexByShowText(QStringLiteral("B")), model.index(1));
        QVERIFY(!model.findIndexByShowText(QStringLiteral("b")).isValid());
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

        const QSignalSpy resets(model, &QAbstractItemModel::modelReset);
        const auto selected = [&model](const QStringList &ids, Qt::CheckState state) {
            model->setSelectIndexs(ids, state);
            QString rows;
            for (const QModelIndex &index : model->getSelectedIndexs())
                rows += index.data().toString();
            return rows;
        };
        QCOMPARE(selected({QStringLiteral("a"), QStringLiteral("B")}, Qt::Checked),
                 QStringLiteral("A"));
        QCOMPARE(selected({QStringLiteral("a")}, Qt::PartiallyChecked), QStringLiteral("B"));
        QCOMPARE(selected({}, Qt::Checked), QString());
        QCOMPARE(selected({}, Qt::Unchecked), QStringLiteral("AB"));
        QCOMPARE(resets.count(), 4);

        model->registerDealWithCheckCb([&model] { delete model; });
        QVERIFY(!model->setData(model->index(0), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!model);
    }

    void recordsCompareAsSaid()
    {
        QVERIFY(item("a", Qt::Checked) != item("a", Qt::Unchecked));
        SelectItemBaseInfo other = item("a", Qt::Checked);
        other.userData = 8;
        QVERIFY(other == item("a", Qt::Checked) && qHash(other) == qHash(item("a", Qt::Checked)));

        const MulListNode lower(QStringLiteral("id"), QStringLiteral("text"), true);
        const MulListNode upper(QStringLiteral("ID"), QStringLiteral("text"), true);
        QVERIFY(lower != upper && !(lower < upper) && !(upper < lower));
        QVERIFY((TreeMulData(lower, {upper}).children == QList<MulListNode>{upper}));

        CusNavigateData page;
        page.naviText = QStringLiteral("Live view");
        QVERIFY(page == CusNavigateData());
        QVERIFY(ListNode<CusNavigateData>(page, {1, 2}) == ListNode<CusNavigateData>());
        QVERIFY(!ListNode<CusNavigateData>().itemSize.isValid());
        NavigationData row;
        row.naviTip = QStringLiteral("tip");
        QVERIFY(row != NavigationData());
        QVERIFY((AnchorPointNode{1, {}} != AnchorPointNode{1, QStringLiteral("Network")}));

        const SelectItemListModel model;
        QCOMPARE(QMetaType::type("keyValueData"), qMetaTypeId<KeyValueData>());
        for (const char *name : {"SelectItemBaseInfo", "KeyValueData", "keyValueData&",
                                 "NavigationData", "QList<TreeMulData>"})
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
    }
};

QTEST_GUILESS_MAIN(TestBasicListModel)
#include "tst_basiclistmodel.moc"

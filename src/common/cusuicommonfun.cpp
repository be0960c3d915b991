#include "common/cusuicommonfun.h"

#include <QApplication>
#include <QDateTime>
#include <QDebug>
#include <QDialog>
#include <QStyle>

#include <algorithm>
#include <atomic>

namespace {

std::atomic<int> runLogLevel{RunLog_Warning};

} // namespace

bool CusUiCommonFun::judgeHaveModalDiaShow(QObject *object)
{
    const QObject *top = topParentObj(object);
    if (!top)
        return false;
    const QList<QDialog *> dialogs = top->findChildren<QDialog *>();
    return std::any_of(dialogs.begin(), dialogs.end(), [](const QDialog *dialog) {
        return dialog->isModal() && !dialog->isHidden();
    });
}

QObject *CusUiCommonFun::topParentObj(QObject *object)
{
    while (object && object->parent())
        object = object->parent();
    return object;
}

QWidget *CusUiCommonFun::topParentWid(QWidget *widget)
{
    // Not parentWidget(): QObject::setParent() may have given the widget any object.
    while (auto *parent = widget ? qobject_cast<QWidget *>(widget->parent()) : nullptr)
        widget = parent;
    return widget;
}

QRect CusUiCommonFun::textBoundingRectUi(const QString &text, const QFontMetrics &metrics,
                                         const QWidget *widget)
{
    QRect rect = metrics.boundingRect(text);
    if (text.isEmpty()) {
        rect.setWidth(0);
        return rect;
    }
    const int margin =
        QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
    rect.setWidth(rect.width() + 2 * margin);
    return rect;
}

void CusUiCommonFun::outputClientRunLog(const QString &first, const QString &second,
                                        ClientOutLogLevel level)
{
    if (level > runLogLevel.load(std::memory_order_relaxed))
        return;
    const qint64 time = QDateTime::currentDateTime().toMSecsSinceEpoch();
    qWarning() << first << "----" << second << "---- time: " << time;
}

void CusUiCommonFun::setClientRunLogLevel(ClientOutLogLevel level)
{
    runLogLevel.store(level, std::memory_order_relaxed);
}

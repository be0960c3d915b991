#pragma once

#include "vellum_export.h"

#include <QTabWidget>

/// A tab widget with a CusTabBar: no scroll arrows, and the wheel doesn't switch tabs.
class VELLUM_EXPORT CusTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit CusTabWidget(QWidget *parent = nullptr);
    ~CusTabWidget() override;
};

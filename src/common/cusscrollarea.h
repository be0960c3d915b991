#pragma once

#include "vellum_export.h"

#include <QScrollArea>

#include <memory>

/// A scroll area with a CusScrollHoverPane at its lower edge, hidden until it is shown.
class VELLUM_EXPORT CusScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit CusScrollArea(QWidget *parent = nullptr);
    ~CusScrollArea() override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

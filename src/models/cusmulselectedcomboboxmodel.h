#pragma once

#include "vellum_export.h"

/// What a combo box with a checkable tree asks of its model beside QAbstractItemModel.
class VELLUM_EXPORT CusMulSelectedComboboxModel
{
public:
    CusMulSelectedComboboxModel() = default;
    virtual ~CusMulSelectedComboboxModel();

    /// How many rows a popup shows that is laid out in full, by what is expanded.
    virtual int getNeedShowNodeCount() const = 0;

private:
    CusMulSelectedComboboxModel(const CusMulSelectedComboboxModel &) = delete;
    CusMulSelectedComboboxModel &operator=(const CusMulSelectedComboboxModel &) = delete;
};

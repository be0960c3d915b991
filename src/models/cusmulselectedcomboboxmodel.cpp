#include "models/cusmulselectedcomboboxmodel.h"

CusMulSelectedComboboxModel::~CusMulSelectedComboboxModel() = default;

#pragma once

#include <QtGlobal>

/// The item data roles that the models and delegates agree on, beside Qt's own. They are fixed
/// numbers from Qt::UserRole (256) up, so that a client's own model can answer them without this
/// header; a delegate takes an invalid QVariant for a role that is not set.
namespace CusItemDataRole {

enum Role : int
{
    RoleRecord = 256,          ///< the row's record; in a combo box cell the selected item's data
    RoleComboKey = 257,        ///< key of the cell's own item list
    RoleRowHidden = 258,       ///< bool; in a table's combo box cell: drawn as a combo box
    RoleHasChildren = 259,     ///< bool: the row has an expand arrow
    RoleExpanded = 260,        ///< bool; in the multi-select editor the QList<TreeMulData>
    RoleCheckEnabled = 261,    ///< bool: false disables a check box; in the multi-select editor the
                               ///< checked node ids
    RolePlaying = 262,         ///< bool
    RoleEditState = 264,       ///< the index's item flags
    RoleBoolState = 265,       ///< bool
    RoleMulState = 266,        ///< int
    RoleHiddenIcons = 268,     ///< QList<int>: ids of the icons to hide
    RoleIconStates = 269,      ///< QMap<int, int>: icon id to state
    RoleTextColor = 270,       ///< QColor
    RoleTextColorActive = 271, ///< QColor, of a hovered or selected cell
    RoleBgColor = 272,         ///< QColor
    RoleBgColorSelected = 273, ///< QColor
    RoleBgColorHover = 274,    ///< QColor
    RoleImage = 276,           ///< image of the cell
    RoleBorderKind = 278,      ///< int: 0 inside a block, 1 opens one, 2 closes one, 3 a single row
    RoleOpenBlock = 281,       ///< bool: first-level node that is expanded
    RoleCellColor = 283,       ///< QColor
    RoleCellBorderColor = 284, ///< QColor
    RoleLinkUrl = 285,         ///< QString
    RoleIconObjName = 289,     ///< QString: object name of the icon's twin; in a list the group
    RoleNaviFlag = 290,        ///< bool, or the icon's int key
    RoleCanClick = 291         ///< bool; in a navigation list the kind of row
};

} // namespace CusItemDataRole

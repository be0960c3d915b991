#include "common/cssitem.h"

CSSItem::CSSItem() = default;
CSSItem::~CSSItem() = default;
CSSItem::CSSItem(const CSSItem &other) = default;
CSSItem &CSSItem::operator=(const CSSItem &other) = default;

#include "common/svgscan.h"

#include "data/xmlscan.h"

#include <QByteArray>

namespace vellum {

bool isRenderableSvg(const QByteArray &svg)
{
    return hasAsciiEncoding(svg);
}

} // namespace vellum

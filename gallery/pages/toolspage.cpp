#include "pages/toolspage.h"

#include "gallerypage.h"
#include "pagekit.h"

#include <QFrame>
#include <QVBoxLayout>

namespace {

class ToolsPage : public QWidget
{
public:
    ToolsPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Tools"),
            QStringLiteral("Functions without a look of their own, at work on what an operator "
                           "would give them."));
        column->addLayout(PageKit::beside(
            {PageKit::card(QStringLiteral("QR code: generateQRCode"), ToolCards::qrCode()),
             PageKit::card(QStringLiteral("Word wrap: warpString"), ToolCards::wordWrap())}));
        column->addWidget(
            PageKit::card(QStringLiteral("Frameless window: hitTest"), ToolCards::hitTestMap()));
        column->addLayout(PageKit::beside(
            {PageKit::card(QStringLiteral("Drag arithmetic: CusMousePressedMove, "
                                          "judgeRectOutBounds"),
                           ToolCards::drag()),
             PageKit::card(QStringLiteral("Rich strings: RichString"), ToolCards::richString())}));
        column->addLayout(PageKit::beside(
            {PageKit::card(QStringLiteral("Input marks: realCheckInvalid, "
                                          "bindTextEditMaxLength"),
                           ToolCards::inputMarks()),
             PageKit::card(QStringLiteral("Run log: CusUiCommonFun::outputClientRunLog"),
                           ToolCards::runLog())}));
    }
};

const GalleryPage page{60, QStringLiteral("Tools"), [] { return new ToolsPage; }};

} // namespace

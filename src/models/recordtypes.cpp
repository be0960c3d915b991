#include "models/recordtypes.h"

#include "models/anchorpointnode.h"
#include "models/cusnavigatedata.h"
#include "models/keyvaluedata.h"
#include "models/mullistnode.h"
#include "models/navigationdata.h"
#include "models/selectitembaseinfo.h"

namespace {

bool registerAll()
{
    qRegisterMetaType<AnchorPointNode>();
    qRegisterMetaType<CusNavigateData>();
    qRegisterMetaType<KeyValueData>();
    // Clients name the record so in string connections and properties.
    qRegisterMetaType<KeyValueData>("keyValueData");
    qRegisterMetaType<KeyValueData>("keyValueData&");
    qRegisterMetaType<ListNode<CusNavigateData>>();
    qRegisterMetaType<MulListNode>();
    qRegisterMetaType<NavigationData>();
    qRegisterMetaType<SelectItemBaseInfo>();
    qRegisterMetaType<TreeMulData>();
    qRegisterMetaType<QList<TreeMulData>>();
    return true;
}

} // namespace

void vellum::registerRecordTypes()
{
    static const bool registered = registerAll();
    Q_UNUSED(registered)
}

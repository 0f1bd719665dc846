#include "maintenance/maintenance.h"

#include "maintenance/backup_copy.h"
#include "maintenance/card_transfer.h"
#include "maintenance/database_tools.h"
#include "maintenance/export.h"

namespace mk {

void registerMaintenanceHandlers(HandlerTable& table)
{
    registerExportHandlers(table);
    registerBackupHandlers(table);
    registerDatabaseToolHandlers(table);
    registerCardTransferHandlers(table);
}

}  // namespace mk

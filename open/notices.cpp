#include "notices.h"

#include "core/translation.h"
#include "types/file_types.h"
#include "types/icon_names.h"

#include <RES_ICON_Reader.h>
#include <ZMessageDlg.h>

#include <memory>

namespace Tambro {

namespace {

constexpr int NoticeType = 2;

void showNotice(const QString &title, const QString &text, const char *titleIcon)
{
    const auto dialog = std::make_unique<ZMessageDlg>(title, text, NoticeType, 0, nullptr, nullptr, true,
                                                      Qt::WindowFlags(), 0);
    dialog->setTitleIcon(RES_ICON_Reader().getIcon(titleIcon, true));
    dialog->exec();
}

} // namespace

void showCannotAccess(const QString &filePath)
{
    const QString text = isVcalendarExtension(filePath)
        ? translate("QObject", "TXT_RID_INSTRUCTIONALTXT_CANNOT_ACCESS_VIA_FILE_MANAGER_OPEN_CALENDAR",
                    "This file can not be accessed via File Manager, please open the Calendar "
                    "application to view this file.")
        : translate("QObject", "TXT_RID_INSTRUCTIONALTXT_CANNOT_ACCESS_VIA_FILE_MANAGER_OPEN_CONTACTS",
                    "This file can not be accessed via File Manager, please open the Contacts "
                    "application to view this file.");
    showNotice(translate("QObject", "TXT_RID_HEADER_CANNOT_ACCESS", "Cannot Access"), text,
               Icons::InformationNotice);
}

void showInstallationFailed()
{
    showNotice(translate("QObject", "TXT_RID_HEADER_INSTALLATION_FAILED", "Installation Failed"),
               translate("QObject",
                         "TXT_RID_INSTRUCTIONALTXT_APPLICATION_CANNOT_BE_INSTALLED_BECAUSE_ONE_OR_MORE_OF_"
                         "THE_REQUIRED_FILES_ARE_MISSING",
                         "This application cannot be installed because one or more of the required "
                         "files are missing."),
               Icons::ErrorNotice);
}

} // namespace Tambro

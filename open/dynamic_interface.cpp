// Loading the services library and forwarding to its service object.
#include "TAMBRO_DYNAMIC_Interface.h"

#include <dlfcn.h>

namespace {

using CreateInterface = TAMBRO_UTIL_Interface *(*)();
using DeleteInterface = int (*)(TAMBRO_UTIL_Interface **);

constexpr char LibraryName[] = "libkivtambro_util.so";

template<typename Function>
Function symbol(void *library, const char *name)
{
    return reinterpret_cast<Function>(::dlsym(library, name));
}

} // namespace

TAMBRO_DYNAMIC_Interface::TAMBRO_DYNAMIC_Interface()
    : m_library(::dlopen(LibraryName, RTLD_NOW)), m_service(nullptr)
{
    if (!m_library)
        return;
    if (const auto create = symbol<CreateInterface>(m_library, "TAMBRO_EXPORT_CreateInterface"))
        m_service = create();
}

TAMBRO_DYNAMIC_Interface::~TAMBRO_DYNAMIC_Interface()
{
    if (!m_library)
        return;
    // Without a delete function the object is left to the library's unloading.
    const auto release = symbol<DeleteInterface>(m_library, "TAMBRO_EXPORT_DeleteInterface");
    if (release && m_service)
        release(&m_service);
    ::dlclose(m_library);
    m_library = nullptr;
}

// Each forwards its arguments unchanged, or answers the default of a missing service.
int TAMBRO_DYNAMIC_Interface::J2ME_JAID_ViewJad(const QString &jadPath, QString &archiveName, int &number,
                                                bool &needsArchive, int installArgument)
{
    return m_service ? m_service->J2ME_JAID_ViewJad(jadPath, archiveName, number, needsArchive, installArgument) : 1;
}

int TAMBRO_DYNAMIC_Interface::JAVA_Install(const QString &path, const QString &descriptorPath, int installArgument)
{
    return m_service ? m_service->JAVA_Install(path, descriptorPath, installArgument) : 0;
}

int TAMBRO_DYNAMIC_Interface::JAVA_Uninstall(int a, bool b, unsigned int c)
{
    return m_service ? m_service->JAVA_Uninstall(a, b, c) : 0;
}

int TAMBRO_DYNAMIC_Interface::QT_Install(const QString &packagePath)
{
    return m_service ? m_service->QT_Install(packagePath) : 0;
}

int TAMBRO_DYNAMIC_Interface::MP_Preview(const QString &a, const QString &b)
{
    return m_service ? m_service->MP_Preview(a, b) : -1;
}

int TAMBRO_DYNAMIC_Interface::ME_Preview(const QString &a)
{
    return m_service ? m_service->ME_Preview(a) : 0;
}

int TAMBRO_DYNAMIC_Interface::GLINT_Preview(const QString &a)
{
    return m_service ? m_service->GLINT_Preview(a) : 0;
}

int TAMBRO_DYNAMIC_Interface::Browser_EditBookmark(const QString &a)
{
    return m_service ? m_service->Browser_EditBookmark(a) : 0;
}

int TAMBRO_DYNAMIC_Interface::BlueTooth_ShareFiles(QStringList &files)
{
    return m_service ? m_service->BlueTooth_ShareFiles(files) : 0;
}

int TAMBRO_DYNAMIC_Interface::Email_ShareFiles(QStringList &files)
{
    return m_service ? m_service->Email_ShareFiles(files) : 0;
}

int TAMBRO_DYNAMIC_Interface::Browser_AddBookmark()
{
    return m_service ? m_service->Browser_AddBookmark() : 0;
}

int TAMBRO_DYNAMIC_Interface::Browser_AddBookmark(const QString &a)
{
    return m_service ? m_service->Browser_AddBookmark(a) : 0;
}

void TAMBRO_DYNAMIC_Interface::Browser_GetUrl(const QString &bookmarkPath, QString &url)
{
    if (m_service)
        m_service->Browser_GetUrl(bookmarkPath, url);
}

int TAMBRO_DYNAMIC_Interface::UpdateBookmarkTitle(const QString &a)
{
    return m_service ? m_service->UpdateBookmarkTitle(a) : 0;
}

int TAMBRO_DYNAMIC_Interface::Theme_ApplytoFile(const QString &a, TAMBRO_APPLY_TYPE type)
{
    return m_service ? m_service->Theme_ApplytoFile(a, type) : 0;
}

int TAMBRO_DYNAMIC_Interface::SDMgr_ApplytoFile(const QString &a, bool b)
{
    return m_service ? m_service->SDMgr_ApplytoFile(a, b) : 0;
}

int TAMBRO_DYNAMIC_Interface::QuickSend_GetContact(QString &a, QString &b)
{
    return m_service ? m_service->QuickSend_GetContact(a, b) : 0;
}

int TAMBRO_DYNAMIC_Interface::QuickSend_SendMessage(const QString &a, const QString &b, const QString &c, bool d)
{
    return m_service ? m_service->QuickSend_SendMessage(a, b, c, d) : 0;
}

int TAMBRO_DYNAMIC_Interface::PRTCTR_GetPrintMethods(int *methods)
{
    return m_service ? m_service->PRTCTR_GetPrintMethods(methods) : 0;
}

int TAMBRO_DYNAMIC_Interface::PRTCTR_IsIndexSupported(int a)
{
    return m_service ? m_service->PRTCTR_IsIndexSupported(a) : 0;
}

// The service gets a copy of its own, released when the call returns.
int TAMBRO_DYNAMIC_Interface::PRTCTR_Print(int a, bool b, QStringList files)
{
    return m_service ? m_service->PRTCTR_Print(a, b, files) : -1;
}

#include "requests.h"

#include "TAMBRO_Global.h"

#include <AM_ActionData.h>
#include <ZConfig.h>

namespace Tambro {

namespace {

const QString AudioList = QStringLiteral("amr|mid|midi|smf|mmf|xmf|imy|mp3|wav|ra|wma|asf|aac|awb|mpga|m4a|"
                                         "3ga|xmf0|xmf1|mxmf|au|ram");
const QString VideoList = QStringLiteral("wmv|3gp|mp4|rm|rmvb|pvp|pvs|rv|asf|pvx|sdp");

// The lists are searched for the extension as a piece of text, deliberately:
// "MP3", "mi" and an empty extension are all found in the audio list.
bool listHolds(const QString &list, const QString &extension)
{
    return list.indexOf(extension, 0, Qt::CaseInsensitive) >= 0;
}

} // namespace

void openSavedMessage(const QString &filePath)
{
    AM_ActionData request;
    request.setAction(QStringLiteral("OpenMMSFile"));
    request.setValue(QStringLiteral("FileName"), filePath);
    request.invoke(false);
}

void viewImage(const QString &filePath, bool preview)
{
    AM_ActionData request;
    request.setAction(QStringLiteral("ViewImagebyName"));
    if (preview) {
        request.setValue(QStringLiteral("Mode"), QStringLiteral("PreviewImageOptions"));
        request.setValue(QStringLiteral("FileName"), filePath);
    } else {
        // Group and key stand in this order in the settings file.
        const int sortOrder = ZConfig(TAMBRO_Global::getConfigFile(), false)
                                  .readNumEntry(QStringLiteral("sortType"), QStringLiteral("tambro"), 0);
        request.setValue(QStringLiteral("FileName"), filePath);
        request.setValue(QStringLiteral("SortType"), sortOrder);
        request.setValue(QStringLiteral("TargetView"), QStringLiteral("normal"));
    }
    request.invoke(false);
}

bool playMedia(const QString &filePath)
{
    // The whole path's text after its last ".", in its own case.
    const QString extension = filePath.mid(filePath.lastIndexOf(u'.') + 1);
    const bool audio = listHolds(AudioList, extension);
    if (!audio && !listHolds(VideoList, extension))
        return false;
    AM_ActionData request;
    request.setAction(QStringLiteral("MediaPlayerLauncher"));
    request.setValue(QStringLiteral("mode"), QStringLiteral("playback"));
    request.setValue(QStringLiteral("uri"), QStringLiteral("file://") + filePath);
    // "asf" is in both lists: the audio list is asked first.
    request.setValue(QStringLiteral("mediaType"), audio ? QStringLiteral("AUDIO") : QStringLiteral("VIDEO"));
    request.setValue(QStringLiteral("callerName"), QStringLiteral("FileManager"));
    request.invoke(false);
    return true;
}

} // namespace Tambro

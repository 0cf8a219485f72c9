#include "tdlib/DemoBundle.h"

#include "tdlib/TDLibRuntime.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

std::optional<AppBundle> demoBundle(const AppBundle &main)
{
    AppBundle demo(main.resourcePath(u"demo-bundle"_s));
    const std::optional<QString> folder = demo.privateLibraryFolder();
    // exists() follows the link: a link to a library that is not there does not count.
    if (!folder || !QFileInfo::exists(*folder + u'/' + TDLibRuntime::libraryFileName()))
        return std::nullopt;
    return demo;
}

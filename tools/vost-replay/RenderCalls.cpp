// Calls that run the display-side helpers on given input.

#include "ReplayDriver.h"
#include "ReplayModules.h"

#include "render/LinkPreviewMetadata.h"
#include "render/LinkRecognizer.h"
#include "render/SmileyText.h"
#include "render/StickerPage.h"
#include "session/ModelNames.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

QJsonValue previewToJson(const LinkPreviewMetadata &metadata)
{
    QJsonValue image = QJsonValue::Null;
    if (metadata.hasImage())
        image = QJsonObject{{"width"_L1, metadata.image().width()}, {"height"_L1, metadata.image().height()}};
    return QJsonObject{{"title"_L1, metadata.title()}, {"siteName"_L1, metadata.siteName()}, {"image"_L1, image}};
}

} // namespace

void registerRenderCalls(ReplayDriver &driver, const ReplayOptions &options)
{
    AppStoreConfiguration store;
    if (!options.appStoreHost.isEmpty())
        store.webHost = options.appStoreHost;
    if (!options.appStoreLookup.isEmpty())
        store.lookupEndpoint = options.appStoreLookup;

    driver.addCall(u"render.smileys"_s, [&driver](const QJsonArray &args) {
        driver.printResult(SmileyText::render(args.at(0).toString()));
    });

    driver.addCall(u"render.links"_s, [&driver](const QJsonArray &args) {
        QJsonArray ranges;
        for (const TextLink &link : findLinks(args.at(0).toString()))
            ranges.append(QJsonArray{qint64(link.start), qint64(link.length)});
        driver.printResult(ranges);
    });

    driver.addCall(u"render.stickerPage"_s, [&driver](const QJsonArray &args) {
        const std::optional<StickerFormat> format = caseFromName<StickerFormat>(args.at(1).toString());
        if (!format)
            return driver.printError(u"unknown sticker format"_s);
        const QByteArray data = QByteArray::fromBase64(args.at(0).toString().toLatin1());
        const std::optional<QString> page = StickerPage::html(data, *format);
        driver.printResult(page ? QJsonValue(*page) : QJsonValue(QJsonValue::Null));
    });

    driver.addCall(u"render.stickerKey"_s, [&driver](const QJsonArray &args) {
        const std::optional<StickerFormat> format = caseFromName<StickerFormat>(args.at(1).toString());
        if (!format)
            return driver.printError(u"unknown sticker format"_s);
        driver.printResult(StickerPage::key(args.at(0).toString(), *format));
    });

    driver.addCall(u"render.linkPreview"_s, [&driver, store](const QJsonArray &args) {
        auto *metadata = new LinkPreviewMetadata(QUrl(args.at(0).toString()), store, &driver);
        driver.holdInput();
        QObject::connect(metadata, &LinkPreviewMetadata::finished, &driver, [&driver, metadata] {
            driver.printResult(previewToJson(*metadata));
            metadata->deleteLater();
            driver.releaseInput();
        });
        metadata->load();
    });
}

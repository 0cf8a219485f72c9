// The chat view model, wired to the session as the root view wires it.

#include "JsonForms.h"
#include "ReplayDriver.h"
#include "ReplayModules.h"

#include "AppRootView.h"

#include "AppEvents.h"
#include "session/CredentialStore.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace {

QString text(const QJsonArray &args, qsizetype index)
{
    // Identifiers may be given as numbers or as text.
    const QJsonValue value = args.at(index);
    return value.isDouble() ? QString::number(value.toInteger()) : value.toString();
}

std::optional<QString> optionalText(const QJsonArray &args, qsizetype index)
{
    const QJsonValue value = args.at(index);
    return value.isNull() || value.isUndefined() ? std::nullopt : std::optional(text(args, index));
}

QJsonValue optionalMessage(const std::optional<Message> &message)
{
    return message ? toJson(*message) : QJsonValue(QJsonValue::Null);
}

// The root view applies session changes once per turn of the event loop. The
// driver handles each input line in an event of its own: applying what is waiting
// before each of them makes every line see the effects of the lines before it,
// whatever the reading thread has queued in the meantime.
class PendingChangesFilter : public QObject
{
public:
    PendingChangesFilter(AppRootView &root, QObject *parent)
        : QObject(parent)
        , m_root(root)
    {}

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MetaCall || event->type() == QEvent::Timer)
            m_root.applyPendingChanges();
        return false;
    }

private:
    AppRootView &m_root;
};

} // namespace

void registerViewModelCalls(ReplayDriver &driver, TelegramSession &session)
{
    // No credentials: start() fills the handlers but never starts TDLib.
    auto *credentials = new CredentialStore({}, &driver);
    auto *root = new AppRootView(*credentials, session, &driver);
    driver.installEventFilter(new PendingChangesFilter(*root, &driver));
    root->start();

    ChatViewModel &model = *root->viewModel();
    const auto call = [&driver, root](const QString &name, const std::function<void(const QJsonArray &)> &function) {
        driver.addCall(name, [root, function](const QJsonArray &args) {
            root->applyPendingChanges();
            function(args);
        });
    };
    const auto state = [&driver, root](const QString &name, const std::function<QJsonValue()> &reader) {
        driver.addState(name, [root, reader] {
            root->applyPendingChanges();
            return reader();
        });
    };

    call(u"selectChat"_s, [&model](const QJsonArray &a) { model.setSelectedChatID(optionalText(a, 0)); });
    call(u"setSearchText"_s, [&model](const QJsonArray &a) { model.setSearchText(text(a, 0)); });
    call(u"setComposerText"_s, [&model](const QJsonArray &a) { model.setComposerText(text(a, 0)); });
    call(u"queueAttachments"_s,
         [&model](const QJsonArray &a) { model.queueAttachments(attachmentsFromJson(a.at(0).toArray())); });
    call(u"queueSticker"_s, [&model](const QJsonArray &a) { model.queueSticker(stickerFromJson(a.at(0).toObject())); });
    call(u"removePendingAttachment"_s, [&model](const QJsonArray &a) {
        const qsizetype index = a.at(0).toInt(-1);
        if (index >= 0 && index < model.pendingAttachments().size())
            model.removePendingAttachment(model.pendingAttachments().at(index).id);
    });
    call(u"setReplyTo"_s, [&model](const QJsonArray &a) {
        const auto id = optionalText(a, 0);
        model.setReplyToMessage(id ? model.selectedChatMessage(*id) : std::nullopt);
    });
    call(u"setEditing"_s, [&model](const QJsonArray &a) {
        const auto id = optionalText(a, 0);
        model.setEditingMessage(id ? model.selectedChatMessage(*id) : std::nullopt);
    });
    call(u"sendMessage"_s, [&model](const QJsonArray &) { model.sendMessage(); });
    call(u"toggleReaction"_s, [&model](const QJsonArray &a) {
        // A message the selected chat does not hold is toggled as one without reactions.
        Message message = model.selectedChatMessage(text(a, 1)).value_or(Message());
        message.id = text(a, 1);
        model.toggleReaction(text(a, 0), message);
    });
    call(u"setPopoverVisible"_s,
         [](const QJsonArray &a) { Q_EMIT AppEvents::shared().popoverVisibilityDidChange(a.at(0).toBool()); });
    call(u"postNotification"_s, [&driver](const QJsonArray &a) { post(driver, text(a, 0), a.at(1)); });

    state(u"vm.chats"_s, [&model] { return QJsonValue(toJsonArray(model.chats())); });
    state(u"vm.filteredChats"_s, [&model] { return QJsonValue(toJsonArray(model.filteredChats())); });
    state(u"vm.selectedChatID"_s, [&model] { return optionalToJson(model.selectedChatID()); });
    state(u"vm.composerText"_s, [&model] { return QJsonValue(model.composerText()); });
    state(u"vm.pendingAttachments"_s, [&model] {
        QJsonArray attachments;
        for (const PendingAttachment &attachment : model.pendingAttachments())
            attachments.append(QJsonObject{
                {"path"_L1, attachment.path},
                {"kind"_L1, attachment.kind == PendingAttachmentKind::Document ? u"document"_s : u"photo"_s}});
        return QJsonValue(attachments);
    });
    state(u"vm.pendingSticker"_s, [&model] {
        const auto sticker = model.pendingSticker();
        return sticker ? toJson(*sticker) : QJsonValue(QJsonValue::Null);
    });
    state(u"vm.replyToMessage"_s, [&model] { return optionalMessage(model.replyToMessage()); });
    state(u"vm.editingMessage"_s, [&model] { return optionalMessage(model.editingMessage()); });
    state(u"vm.unreadDividers"_s, [&model] {
        QJsonObject dividers;
        const auto &entries = model.unreadDividers();
        for (auto it = entries.begin(); it != entries.end(); ++it)
            dividers.insert(it.key(), it.value());
        return QJsonValue(dividers);
    });
    state(u"vm.canSendMessages"_s, [&model] { return QJsonValue(model.canSendMessages()); });
}

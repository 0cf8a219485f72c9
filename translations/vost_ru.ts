<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>Announcer</name>
    <message>
        <source>New Telegram message</source>
        <translation>Новое сообщение в Telegram</translation>
    </message>
</context>
<context>
    <name>AppConfigurationErrorView</name>
    <message>
        <source>Vost needs to be reinstalled</source>
        <translation>Vost необходимо переустановить</translation>
    </message>
    <message>
        <source>This copy of Vost is missing its application configuration. Please install the latest complete release from the app’s distributor.</source>
        <translation>В этой копии Vost отсутствует конфигурация приложения. Установите последнюю полную версию от распространителя приложения.</translation>
    </message>
</context>
<context>
    <name>ArchiveHeader</name>
    <message numerus="yes">
        <source>Archived chats, %n unread</source>
        <translation>
            <numerusform>Архив, %n непрочитанное</numerusform>
            <numerusform>Архив, %n непрочитанных</numerusform>
            <numerusform>Архив, %n непрочитанных</numerusform>
        </translation>
    </message>
    <message>
        <source>Archived chats</source>
        <translation>Архив</translation>
    </message>
    <message>
        <source>Back to chats</source>
        <translation>Назад к чатам</translation>
    </message>
</context>
<context>
    <name>AuthorizationStore</name>
    <message>
        <source>Waiting to start</source>
        <translation>Ожидание запуска</translation>
    </message>
    <message>
        <source>Received TDLib event: %1</source>
        <extracomment>%1 is the name of TDLib&apos;s event, such as updateOption.</extracomment>
        <translation>Получено событие TDLib: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>The Telegram session is closing.</source>
        <translation>Сеанс Telegram завершается.</translation>
    </message>
    <message>
        <source>The Telegram session closed.</source>
        <translation>Сеанс Telegram завершён.</translation>
    </message>
</context>
<context>
    <name>CallCard</name>
    <message>
        <source>Cancelled call</source>
        <translation>Отменённый звонок</translation>
    </message>
    <message>
        <source>Missed call</source>
        <translation>Пропущенный звонок</translation>
    </message>
    <message>
        <source>Declined call</source>
        <translation>Отклонённый звонок</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <translation>Исходящий видеозвонок</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <translation>Входящий видеозвонок</translation>
    </message>
    <message>
        <source>Outgoing call</source>
        <translation>Исходящий звонок</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Входящий звонок</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A call read aloud: %1 what kind of call, %2 how long it lasted.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>ChatLayout</name>
    <message>
        <source>Chats</source>
        <translation>Чаты</translation>
    </message>
    <message>
        <source>Delete the chat with %1 and remove them from your contacts?</source>
        <translation>Удалить чат с %1 и удалить этот контакт?</translation>
    </message>
    <message>
        <source>Delete the chat “%1”?</source>
        <translation>Удалить чат «%1»?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the chat.</extracomment>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>ChatListView</name>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Chat list</source>
        <translation>Список чатов</translation>
    </message>
    <message>
        <source>Scroll chats</source>
        <translation>Прокрутка списка чатов</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>No chats yet</source>
        <translation>Чатов пока нет</translation>
    </message>
</context>
<context>
    <name>ChatMenu</name>
    <message>
        <source>Chat actions</source>
        <translation>Действия с чатом</translation>
    </message>
    <message>
        <source>Delete chat</source>
        <translation>Удалить чат</translation>
    </message>
    <message>
        <source>Delete chat and contact</source>
        <translation>Удалить чат и контакт</translation>
    </message>
</context>
<context>
    <name>ChatRow</name>
    <message>
        <source>Deleting…</source>
        <translation>Удаление…</translation>
    </message>
    <message>
        <source>Draft: %1</source>
        <extracomment>%1 is the start of the unsent text of the chat.</extracomment>
        <translation>Черновик: %1</translation>
    </message>
    <message>
        <source>secret chat</source>
        <extracomment>Read aloud after a chat&apos;s title, like the other states of a chat here.</extracomment>
        <translation>секретный чат</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>закреплён</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>без звука</translation>
    </message>
    <message>
        <source>archived</source>
        <translation>в архиве</translation>
    </message>
    <message numerus="yes">
        <source>%n unread</source>
        <extracomment>How many messages of the chat are unread.</extracomment>
        <translation>
            <numerusform>%n непрочитанное</numerusform>
            <numerusform>%n непрочитанных</numerusform>
            <numerusform>%n непрочитанных</numerusform>
        </translation>
    </message>
    <message>
        <source>marked unread</source>
        <translation>отмечен как непрочитанный</translation>
    </message>
</context>
<context>
    <name>ChatSearchBar</name>
    <message>
        <source>Search in chat</source>
        <translation>Поиск в чате</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Поиск…</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Search failed</source>
        <translation>Не удалось выполнить поиск</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n</source>
        <extracomment>Which search result shows, of how many: &quot;3 of 12&quot;.</extracomment>
        <translation>
            <numerusform>%1 из %n</numerusform>
            <numerusform>%1 из %n</numerusform>
            <numerusform>%1 из %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Older result</source>
        <translation>Предыдущий результат</translation>
    </message>
    <message>
        <source>Newer result</source>
        <translation>Следующий результат</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>Закрыть поиск</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Pasted image %1.png</source>
        <extracomment>The file name of a pasted image; %1 is a short random code.</extracomment>
        <translation>Вставленное изображение %1.png</translation>
    </message>
</context>
<context>
    <name>CodeBlock</name>
    <message>
        <source>Copy</source>
        <extracomment>A button on a block of code in a message: copies the code.</extracomment>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copies the %1 code</source>
        <translation>Копирует код на %1</translation>
    </message>
    <message>
        <source>Copies the code</source>
        <translation>Копирует код</translation>
    </message>
    <message>
        <source>%1 code: %2</source>
        <extracomment>How screen readers name a block of code in a message; %1 is the code.</extracomment>
        <translation>Код на %1: %2</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Код: %1</translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Composer</source>
        <translation>Поле ввода</translation>
    </message>
    <message>
        <source>Attach</source>
        <extracomment>A verb: the button that adds files.</extracomment>
        <translation>Прикрепить</translation>
    </message>
    <message>
        <source>Scroll message text</source>
        <translation>Прокрутка текста сообщения</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A noun: the text being written.</extracomment>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Эмодзи</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Стикеры</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>The send button while a message is edited: a verb.</extracomment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
</context>
<context>
    <name>ComposerBanner</name>
    <message>
        <source>%1: %2</source>
        <extracomment>The banner above the composer read aloud: %1 its title, %2 the quoted message.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Edit message</source>
        <translation>Редактирование сообщения</translation>
    </message>
    <message>
        <source>Reply to %1</source>
        <translation>Ответ: %1</translation>
    </message>
    <message>
        <source>Cancel editing</source>
        <translation>Отменить редактирование</translation>
    </message>
    <message>
        <source>Cancel reply</source>
        <translation>Отменить ответ</translation>
    </message>
</context>
<context>
    <name>ComposerMenu</name>
    <message>
        <source>Spelling</source>
        <translation>Орфография</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>The composer&apos;s context menu without a misspelt word: the editing commands.</extracomment>
        <translation>Правка</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <extracomment>Keeps a word the spelling check does not know from being marked again.</extracomment>
        <translation>Добавить в словарь</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ConnectionStatus</name>
    <message>
        <source>Waiting for network…</source>
        <extracomment>Above the chat list while the computer has no network connection</extracomment>
        <translation>Ожидание сети…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>Above the chat list while the link to Telegram is being made</extracomment>
        <translation>Соединение…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>Above the chat list while what happened offline is being fetched</extracomment>
        <translation>Обновление…</translation>
    </message>
</context>
<context>
    <name>ContactCard</name>
    <message>
        <source>Contact %1, %2</source>
        <translation>Контакт %1, %2</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to the person on the card.</extracomment>
        <translation>Написать</translation>
    </message>
</context>
<context>
    <name>ContactMenu</name>
    <message>
        <source>Contact actions</source>
        <translation>Действия с контактом</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to this contact.</extracomment>
        <translation>Написать</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Удалить контакт</translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>%1, online</source>
        <translation>%1, в сети</translation>
    </message>
    <message>
        <source>online</source>
        <extracomment>Said of a contact who is using Telegram right now.</extracomment>
        <translation>в сети</translation>
    </message>
</context>
<context>
    <name>ContactStore</name>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>Telegram вернул неизвестную ошибку.</translation>
    </message>
    <message>
        <source>Telegram took too long to respond. A submitted contact may already be saved. Check Contacts or try again.</source>
        <translation>Telegram слишком долго не отвечал. Контакт мог уже сохраниться. Проверьте контакты или повторите попытку.</translation>
    </message>
    <message>
        <source>Enter a first name. First and last names can each contain up to 64 characters.</source>
        <translation>Введите имя. Имя и фамилия могут содержать не более 64 символов каждое.</translation>
    </message>
    <message>
        <source>Enter a valid phone number including + and the country code (for example, +44 7700 900123).</source>
        <translation>Введите корректный номер телефона с + и кодом страны (например, +44 7700 900123).</translation>
    </message>
    <message>
        <source>Enter a Telegram username, such as @username, using letters, numbers and underscores.</source>
        <translation>Введите имя пользователя Telegram, например @username: допускаются латинские буквы, цифры и подчёркивания.</translation>
    </message>
    <message>
        <source>The contact was saved, but the chat could not be opened. Try opening it from Contacts.</source>
        <translation>Контакт сохранён, но открыть чат не удалось. Попробуйте открыть его из контактов.</translation>
    </message>
    <message>
        <source>No Telegram account could be found for that number. Check the country code or try their username; Telegram privacy settings can prevent phone-number lookup.</source>
        <translation>Аккаунт Telegram с этим номером не найден. Проверьте код страны или попробуйте имя пользователя: настройки конфиденциальности Telegram могут запрещать поиск по номеру телефона.</translation>
    </message>
    <message>
        <source>Telegram could not complete this action.</source>
        <translation>Telegram не удалось выполнить это действие.</translation>
    </message>
    <message>
        <source>The chat was deleted, but the contact could not be removed.</source>
        <translation>Чат удалён, но удалить контакт не удалось.</translation>
    </message>
    <message>
        <source>Telegram contact</source>
        <translation>Контакт Telegram</translation>
    </message>
</context>
<context>
    <name>ContentTexts</name>
    <message>
        <source>📷 Photo</source>
        <translation>📷 Фотография</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фотография</translation>
    </message>
    <message>
        <source>🎬 Video</source>
        <translation>🎬 Видео</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>🎤 Voice message</source>
        <translation>🎤 Голосовое сообщение</translation>
    </message>
    <message>
        <source>Voice message</source>
        <translation>Голосовое сообщение</translation>
    </message>
    <message>
        <source>Video message</source>
        <translation>Видеосообщение</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Стикер</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>📎 Document</source>
        <translation>📎 Файл</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>🎵 Audio</source>
        <translation>🎵 Аудио</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Аудио</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Звонок</translation>
    </message>
    <message>
        <source>📍 Location</source>
        <translation>📍 Геопозиция</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Контакт</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Опрос</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Эмодзи</translation>
    </message>
    <message>
        <source>Unsupported message</source>
        <translation>Неподдерживаемое сообщение</translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation>Сообщений пока нет</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Личный чат</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Group or channel</source>
        <translation>Группа или канал</translation>
    </message>
    <message>
        <source>Secret chat</source>
        <translation>Секретный чат</translation>
    </message>
</context>
<context>
    <name>ConversationView</name>
    <message>
        <source>Conversation with %1</source>
        <translation>Переписка с %1</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Scroll messages</source>
        <translation>Прокрутка сообщений</translation>
    </message>
    <message>
        <source>Loading older messages</source>
        <translation>Загрузка предыдущих сообщений</translation>
    </message>
    <message>
        <source>Start of the conversation</source>
        <translation>Начало переписки</translation>
    </message>
    <message>
        <source>Delete this message for everyone?</source>
        <translation>Удалить это сообщение у всех?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the message.</extracomment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Search in chat</source>
        <translation>Поиск в чате</translation>
    </message>
</context>
<context>
    <name>DateTexts</name>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
</context>
<context>
    <name>DiceCard</name>
    <message>
        <source>%1 rolled %2</source>
        <extracomment>%1 is the die&apos;s emoji (a die, a dart, a ball), %2 the number it came up with.</extracomment>
        <translation>%1: выпало %2</translation>
    </message>
</context>
<context>
    <name>DocumentCard</name>
    <message>
        <source>Document %1, %2</source>
        <translation>Файл %1, %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the file has come and its whole size, as in &quot;1.2 MB of 5 MB&quot;.</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the file with its application.</extracomment>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the file to a folder.</extracomment>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>DownloadRing</name>
    <message>
        <source>Downloading, %1 %</source>
        <extracomment>%1 is how much has come, in percent.</extracomment>
        <translation>Загрузка, %1 %</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Загрузка</translation>
    </message>
</context>
<context>
    <name>EmojiPicker</name>
    <message>
        <source>Emoji picker</source>
        <translation>Панель эмодзи</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Emoji sent lately.</extracomment>
        <translation>Недавние</translation>
    </message>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Смайлики и эмоции</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Люди и тело</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Животные и природа</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Еда и напитки</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Путешествия и места</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Занятия</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Предметы</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Символы</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Флаги</translation>
    </message>
    <message>
        <source>Search emoji</source>
        <translation>Поиск эмодзи</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Эмодзи</translation>
    </message>
    <message>
        <source>Scroll emoji</source>
        <translation>Прокрутка эмодзи</translation>
    </message>
    <message>
        <source>No emoji found</source>
        <translation>Эмодзи не найдены</translation>
    </message>
</context>
<context>
    <name>EmptyConversationView</name>
    <message>
        <source>Conversation</source>
        <translation>Переписка</translation>
    </message>
    <message>
        <source>Choose a Telegram chat or contact.</source>
        <translation>Выберите чат или контакт Telegram.</translation>
    </message>
</context>
<context>
    <name>ErrorBanner</name>
    <message>
        <source>Dismiss</source>
        <extracomment>A verb: close the error message.</extracomment>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>ErrorTexts</name>
    <message>
        <source>That phone number isn’t valid. Enter it with + and the country code, for example +44 7700 900123.</source>
        <translation>Неверный номер телефона. Введите его с + и кодом страны, например +44 7700 900123.</translation>
    </message>
    <message>
        <source>This phone number is banned from Telegram.</source>
        <translation>Этот номер телефона заблокирован в Telegram.</translation>
    </message>
    <message>
        <source>This number has asked for too many codes. Try again later.</source>
        <translation>Для этого номера запрошено слишком много кодов. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>This number has no Telegram account yet. Sign up in Telegram’s phone app first.</source>
        <translation>С этим номером ещё нет аккаунта Telegram. Сначала зарегистрируйтесь в приложении Telegram на телефоне.</translation>
    </message>
    <message>
        <source>That code isn’t right. Check it and try again.</source>
        <translation>Неверный код. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>Enter the code Telegram sent you.</source>
        <translation>Введите код, который прислал Telegram.</translation>
    </message>
    <message>
        <source>That code has expired. Use a different number, or enter this one again for a new code.</source>
        <translation>Срок действия кода истёк. Укажите другой номер или введите этот ещё раз, чтобы получить новый код.</translation>
    </message>
    <message>
        <source>That password isn’t right. Try again.</source>
        <translation>Неверный пароль. Повторите попытку.</translation>
    </message>
    <message>
        <source>Enter your two-step verification password.</source>
        <translation>Введите пароль двухэтапной аутентификации.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a while, then try again.</source>
        <translation>Слишком много попыток. Подождите немного и повторите попытку.</translation>
    </message>
    <message>
        <source>Signing in has to start again. Enter your number once more.</source>
        <translation>Вход нужно начать заново. Введите номер ещё раз.</translation>
    </message>
    <message>
        <source>Telegram refused this copy of Vost. Install the latest release.</source>
        <translation>Telegram отклонил эту копию Vost. Установите последнюю версию.</translation>
    </message>
    <message>
        <source>Nobody on Telegram has that username.</source>
        <translation>Такого имени пользователя в Telegram нет.</translation>
    </message>
    <message>
        <source>That isn’t a valid username. Usernames use letters, numbers and underscores.</source>
        <translation>Недопустимое имя пользователя. Допускаются латинские буквы, цифры и подчёркивания.</translation>
    </message>
    <message>
        <source>Enter a first name.</source>
        <translation>Введите имя.</translation>
    </message>
    <message>
        <source>That first name can’t be used. Try a shorter one.</source>
        <translation>Это имя использовать нельзя. Попробуйте более короткое.</translation>
    </message>
    <message>
        <source>That last name can’t be used. Try a shorter one.</source>
        <translation>Эту фамилию использовать нельзя. Попробуйте более короткую.</translation>
    </message>
    <message>
        <source>Their privacy settings don’t allow this. Try their username instead.</source>
        <translation>Настройки конфиденциальности этого пользователя не позволяют это сделать. Попробуйте вместо этого имя пользователя.</translation>
    </message>
    <message>
        <source>That person can’t be added as a contact.</source>
        <translation>Этого пользователя нельзя добавить в контакты.</translation>
    </message>
</context>
<context>
    <name>FilePanel</name>
    <message>
        <source>Attach files</source>
        <translation>Прикрепить файлы</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
</context>
<context>
    <name>FormattedBody</name>
    <message>
        <source>Links to %1</source>
        <extracomment>The addresses behind the links of a message&apos;s text, for screen readers.</extracomment>
        <translation>Ссылка на %1</translation>
    </message>
    <message>
        <source>Quotation</source>
        <extracomment>Said by screen readers of a quoted paragraph in a message.</extracomment>
        <translation>Цитата</translation>
    </message>
</context>
<context>
    <name>ForwardDialog</name>
    <message>
        <source>Forward to</source>
        <extracomment>The title of the list of chats a message can be forwarded to.</extracomment>
        <translation>Переслать</translation>
    </message>
    <message>
        <source>Search chats</source>
        <translation>Поиск чатов</translation>
    </message>
    <message>
        <source>Chats to forward to</source>
        <translation>Чаты для пересылки</translation>
    </message>
    <message>
        <source>Scroll chats to forward to</source>
        <translation>Прокрутка чатов для пересылки</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Ничего не найдено</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotificationPoster</name>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>A notification&apos;s action that answers its message.</extracomment>
        <translation>Ответить</translation>
    </message>
    <message>
        <source>Reply…</source>
        <translation>Ответить…</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Отметить как прочитанное</translation>
    </message>
</context>
<context>
    <name>GlobalShortcut</name>
    <message>
        <source>Open or close Vost</source>
        <translation>Открыть или закрыть Vost</translation>
    </message>
</context>
<context>
    <name>LanguageChoice</name>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language that follows the system&apos;s own.</extracomment>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
</context>
<context>
    <name>LocationCard</name>
    <message>
        <source>Location %1</source>
        <translation>Геопозиция %1</translation>
    </message>
    <message>
        <source>Open map</source>
        <translation>Открыть карту</translation>
    </message>
</context>
<context>
    <name>LoginPresenter</name>
    <message>
        <source>We’ve sent the code for %1 to the Telegram app on your other device.</source>
        <translation>Мы отправили код для %1 в приложение Telegram на другом вашем устройстве.</translation>
    </message>
    <message>
        <source>We’ve sent the code to %1 by SMS.</source>
        <translation>Мы отправили код на %1 по SMS.</translation>
    </message>
    <message>
        <source>Telegram is calling %1 to tell you the code.</source>
        <translation>Telegram звонит на %1, чтобы продиктовать код.</translation>
    </message>
    <message>
        <source>Telegram is calling %1: the last digits of the calling number are the code.</source>
        <translation>Telegram звонит на %1: последние цифры входящего номера — это и есть код.</translation>
    </message>
    <message>
        <source>The code for %1 is waiting on fragment.com.</source>
        <translation>Код для %1 ждёт вас на fragment.com.</translation>
    </message>
    <message>
        <source>The code for %1 was sent to Telegram on your phone.</source>
        <translation>Код для %1 отправлен в Telegram на вашем телефоне.</translation>
    </message>
    <message>
        <source>The code was sent for %1.</source>
        <translation>Код для %1 отправлен.</translation>
    </message>
</context>
<context>
    <name>LoginTexts</name>
    <message>
        <source>Preparing Telegram</source>
        <translation>Подготовка Telegram</translation>
    </message>
    <message>
        <source>Starting the secure TDLib connection…</source>
        <translation>Установка защищённого соединения TDLib…</translation>
    </message>
    <message>
        <source>Sign in to Telegram</source>
        <translation>Вход в Telegram</translation>
    </message>
    <message>
        <source>Enter the telephone number associated with your Telegram account, including its international country code.</source>
        <translation>Введите номер телефона, привязанный к вашему аккаунту Telegram, включая международный код страны.</translation>
    </message>
    <message>
        <source>Telephone number, including country code</source>
        <translation>Номер телефона с кодом страны</translation>
    </message>
    <message>
        <source>Enter your verification code</source>
        <translation>Введите код подтверждения</translation>
    </message>
    <message>
        <source>Telegram sent a code to one of your existing Telegram sessions or by another supported method.</source>
        <translation>Telegram отправил код в один из ваших активных сеансов Telegram или другим доступным способом.</translation>
    </message>
    <message>
        <source>Telegram verification code</source>
        <translation>Код подтверждения Telegram</translation>
    </message>
    <message>
        <source>Two-step verification</source>
        <translation>Двухэтапная аутентификация</translation>
    </message>
    <message>
        <source>Your account uses an additional password. Enter it to complete sign-in.</source>
        <translation>Ваш аккаунт защищён дополнительным паролем. Введите его, чтобы завершить вход.</translation>
    </message>
    <message>
        <source>Two-step verification password</source>
        <translation>Пароль двухэтапной аутентификации</translation>
    </message>
    <message>
        <source>Telegram is unavailable</source>
        <translation>Telegram недоступен</translation>
    </message>
    <message>
        <source>The app could not start its Telegram connection.</source>
        <translation>Приложению не удалось установить соединение с Telegram.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <extracomment>The two-step password&apos;s hint, as its owner wrote it.</extracomment>
        <translation>Подсказка: %1</translation>
    </message>
    <message>
        <source>Verification codes and passwords are sent directly to TDLib and are never saved by this app.</source>
        <translation>Коды подтверждения и пароли передаются напрямую в TDLib и никогда не сохраняются этим приложением.</translation>
    </message>
</context>
<context>
    <name>MessageBubble</name>
    <message>
        <source>sending</source>
        <extracomment>A message&apos;s delivery state, read aloud after its time; the next two as well.</extracomment>
        <translation>отправляется</translation>
    </message>
    <message>
        <source>read</source>
        <translation>прочитано</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>отправлено</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Вы</translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Said of a message that was changed after it was sent.</extracomment>
        <translation>изменено</translation>
    </message>
    <message>
        <source>%1 %2, yours</source>
        <extracomment>A reaction read aloud: %1 is its emoji, %2 how many reacted with it; you did too.</extracomment>
        <translation>%1 %2, ваша реакция</translation>
    </message>
    <message>
        <source>Unread messages</source>
        <translation>Непрочитанные сообщения</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The button that opens a message&apos;s actions.</extracomment>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Forwarded from %1</source>
        <translation>Переслано от %1</translation>
    </message>
    <message>
        <source>Link preview: %1</source>
        <translation>Предпросмотр ссылки: %1</translation>
    </message>
    <message>
        <source>edited  %1</source>
        <extracomment>An edited message&apos;s time; %1 is the time, such as 14:05.</extracomment>
        <translation>изменено  %1</translation>
    </message>
</context>
<context>
    <name>MessageListModel</name>
    <message>
        <source>Photo</source>
        <translation>Фотография</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>Message actions</source>
        <translation>Действия с сообщением</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>Реакции</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>Verbs: the actions of the message menu, down to Delete.</extracomment>
        <translation>Ответить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Переслать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>hidden text</source>
        <extracomment>Read by screen readers in place of a spoiler, a part of a message hidden until clicked.</extracomment>
        <translation>скрытый текст</translation>
    </message>
</context>
<context>
    <name>NewChatView</name>
    <message>
        <source>New chat</source>
        <translation>Новый чат</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Поиск контактов</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Контакты</translation>
    </message>
    <message>
        <source>Scroll contacts</source>
        <translation>Прокрутка контактов</translation>
    </message>
    <message>
        <source>Found by Telegram</source>
        <translation>Найдено в Telegram</translation>
    </message>
    <message>
        <source>No contacts found</source>
        <translation>Контакты не найдены</translation>
    </message>
    <message>
        <source>No contacts yet</source>
        <translation>Контактов пока нет</translation>
    </message>
    <message>
        <source>Remove %1 from your contacts?</source>
        <translation>Удалить %1 из контактов?</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Удалить контакт</translation>
    </message>
</context>
<context>
    <name>NewContactForms</name>
    <message>
        <source>Add contact</source>
        <translation>Добавить контакт</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Фамилия</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Номер телефона</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A noun: a private note about the new contact.</extracomment>
        <translation>Заметка</translation>
    </message>
    <message>
        <source>Open username</source>
        <extracomment>A form&apos;s title: open a chat by someone&apos;s public username.</extracomment>
        <translation>Открыть по имени пользователя</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: the button that opens the chat with that username.</extracomment>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Opening the chat</source>
        <translation>Открытие чата</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>NewestButton</name>
    <message>
        <source>↓</source>
        <extracomment>An arrow glyph pointing down, to the newest message; not a word.</extracomment>
        <translation>↓</translation>
    </message>
    <message>
        <source>Go to newest message</source>
        <translation>К последнему сообщению</translation>
    </message>
    <message numerus="yes">
        <source>↓ %n new</source>
        <extracomment>On the button under the transcript: how many messages arrived below, with an arrow pointing down to them.</extracomment>
        <translation>
            <numerusform>↓ %n новое</numerusform>
            <numerusform>↓ %n новых</numerusform>
            <numerusform>↓ %n новых</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <extracomment>The same button read aloud: how many messages arrived below.</extracomment>
        <translation>
            <numerusform>%n новое сообщение</numerusform>
            <numerusform>%n новых сообщения</numerusform>
            <numerusform>%n новых сообщений</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the first new message</source>
        <translation>Перейти к первому новому сообщению</translation>
    </message>
</context>
<context>
    <name>PendingStrip</name>
    <message>
        <source>Files to send</source>
        <translation>Файлы для отправки</translation>
    </message>
    <message>
        <source>Scroll files to send</source>
        <translation>Прокрутка файлов для отправки</translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation>Фотография %1</translation>
    </message>
    <message>
        <source>Document %1, %2</source>
        <translation>Файл %1, %2</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Убрать %1</translation>
    </message>
    <message>
        <source>Send as file</source>
        <translation>Отправить как файл</translation>
    </message>
    <message>
        <source>%1 is empty and can’t be sent.</source>
        <translation>Файл %1 пуст, его нельзя отправить.</translation>
    </message>
    <message>
        <source>%1 is a folder; choose the files in it.</source>
        <translation>%1 — это папка; выберите файлы внутри неё.</translation>
    </message>
    <message>
        <source>%1 is larger than 2 GB, more than Telegram takes.</source>
        <translation>Файл %1 больше 2 ГБ — это больше, чем принимает Telegram.</translation>
    </message>
    <message>
        <source>%1 can’t be read.</source>
        <translation>Не удалось прочитать файл %1.</translation>
    </message>
</context>
<context>
    <name>PhotoAlbum</name>
    <message>
        <source>Photo</source>
        <translation>Фотография</translation>
    </message>
    <message numerus="yes">
        <source>Album, %n photos</source>
        <translation>
            <numerusform>Альбом, %n фотография</numerusform>
            <numerusform>Альбом, %n фотографии</numerusform>
            <numerusform>Альбом, %n фотографий</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PhotoViewer</name>
    <message>
        <source>Photo viewer</source>
        <translation>Просмотр фотографий</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>Фотография %1 из %2</translation>
    </message>
    <message>
        <source>Video %1 of %2</source>
        <translation>Видео %1 из %2</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous picture of the album.</extracomment>
        <translation>Предыдущая</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next picture of the album.</extracomment>
        <translation>Следующая</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the picture to a folder.</extracomment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the picture with its application.</extracomment>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The picture shown and how many the album has, as in &quot;2 of 5&quot;.</extracomment>
        <translation>%1 из %2</translation>
    </message>
</context>
<context>
    <name>PollCard</name>
    <message>
        <source>Quiz</source>
        <translation>Викторина</translation>
    </message>
    <message>
        <source>Anonymous poll</source>
        <translation>Анонимный опрос</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Опрос</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1, голосование завершено</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <extracomment>A poll&apos;s answer read aloud: %1 is the answer, %2 the share of votes in percent.</extracomment>
        <translation>%1, %2 %</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <extracomment>How many people voted in the poll.</extracomment>
        <translation>
            <numerusform>%n голос</numerusform>
            <numerusform>%n голоса</numerusform>
            <numerusform>%n голосов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreferencesView</name>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Scroll preferences</source>
        <translation>Прокрутка настроек</translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>Titles of the preferences&apos; sections.</extracomment>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>The appearance that follows the system&apos;s light or dark setting.</extracomment>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлое</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмное</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Звуки</translation>
    </message>
    <message>
        <source>Play sounds</source>
        <translation>Воспроизводить звуки</translation>
    </message>
    <message>
        <source>Sound pack</source>
        <translation>Набор звуков</translation>
    </message>
    <message>
        <source>Crystal</source>
        <extracomment>Names of the sound packs.</extracomment>
        <translation>Кристалл</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Мягкий</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Классический</translation>
    </message>
    <message>
        <source>Playful</source>
        <translation>Игривый</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Показывать уведомления</translation>
    </message>
    <message>
        <source>Start Vost when I sign in to my computer</source>
        <translation>Запускать Vost при входе в систему</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Аккаунт</translation>
    </message>
    <message>
        <source>Change account</source>
        <extracomment>A verb: sign out and sign in to another account.</extracomment>
        <translation>Сменить аккаунт</translation>
    </message>
    <message>
        <source>Demo account: nothing leaves this computer</source>
        <translation>Демо-аккаунт: данные не покидают этот компьютер</translation>
    </message>
    <message>
        <source>Vost %1</source>
        <extracomment>%1 is the version, such as 0.1.0.</extracomment>
        <translation>Vost %1</translation>
    </message>
    <message>
        <source>Sign out of this account and sign in to another?</source>
        <translation>Выйти из этого аккаунта и войти в другой?</translation>
    </message>
    <message>
        <source>Check spelling</source>
        <extracomment>Whether the composer underlines misspelt words.</extracomment>
        <translation>Проверять орфографию</translation>
    </message>
</context>
<context>
    <name>ReplyQuote</name>
    <message>
        <source>You</source>
        <translation>Вы</translation>
    </message>
    <message>
        <source>Message not found</source>
        <translation>Сообщение не найдено</translation>
    </message>
    <message>
        <source>Reply to %1: %2</source>
        <extracomment>A quoted message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>Ответ — %1: %2</translation>
    </message>
    <message>
        <source>a message</source>
        <translation>сообщение</translation>
    </message>
</context>
<context>
    <name>ShortcutChoice</name>
    <message>
        <source>Press keys…</source>
        <extracomment>Shown on the shortcut&apos;s button while it waits for a key combination.</extracomment>
        <translation>Нажмите клавиши…</translation>
    </message>
    <message>
        <source>None</source>
        <comment>shortcut</comment>
        <extracomment>On the shortcut&apos;s button when no shortcut is chosen.</extracomment>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Shortcut to open Vost</source>
        <translation>Сочетание клавиш для открытия Vost</translation>
    </message>
    <message>
        <source>Taken by another program</source>
        <translation>Занято другой программой</translation>
    </message>
    <message>
        <source>Not available on this desktop</source>
        <translation>Недоступно в этом окружении</translation>
    </message>
    <message>
        <source>Not allowed by the desktop</source>
        <extracomment>The desktop was asked for the shortcut and did not give it.</extracomment>
        <translation>Окружение не разрешило</translation>
    </message>
</context>
<context>
    <name>SidebarToolbar</name>
    <message>
        <source>New chat</source>
        <translation>Новый чат</translation>
    </message>
    <message>
        <source>New chat (Ctrl+N)</source>
        <translation>Новый чат (Ctrl+N)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Preferences (Ctrl+,)</source>
        <translation>Настройки (Ctrl+,)</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message numerus="yes">
        <source>Vost, %n unread messages</source>
        <extracomment>The tray icon&apos;s accessible name.</extracomment>
        <translation>
            <numerusform>Vost, %n непрочитанное сообщение</numerusform>
            <numerusform>Vost, %n непрочитанных сообщения</numerusform>
            <numerusform>Vost, %n непрочитанных сообщений</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for network…</source>
        <extracomment>The tray item&apos;s tool tip while the computer has no network connection</extracomment>
        <translation>Ожидание сети…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>The tray item&apos;s tool tip while the link to Telegram is being made</extracomment>
        <translation>Соединение…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>The tray item&apos;s tool tip while what happened offline is being fetched</extracomment>
        <translation>Обновление…</translation>
    </message>
</context>
<context>
    <name>StickerPicker</name>
    <message>
        <source>Sticker picker</source>
        <translation>Панель стикеров</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Tabs of the sticker picker: stickers sent lately, then installed, then popular ones.</extracomment>
        <translation>Недавние</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Установленные</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Популярные</translation>
    </message>
    <message>
        <source>Search stickers</source>
        <translation>Поиск стикеров</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Стикеры</translation>
    </message>
    <message>
        <source>Scroll stickers</source>
        <translation>Прокрутка стикеров</translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation>Стикер %1</translation>
    </message>
    <message>
        <source>No stickers found</source>
        <translation>Стикеры не найдены</translation>
    </message>
    <message>
        <source>No stickers here yet</source>
        <translation>Здесь пока нет стикеров</translation>
    </message>
    <message>
        <source>Loading stickers</source>
        <translation>Загрузка стикеров</translation>
    </message>
</context>
<context>
    <name>StickerStore</name>
    <message>
        <source>Unable to load stickers.</source>
        <translation>Не удалось загрузить стикеры.</translation>
    </message>
</context>
<context>
    <name>StickerView</name>
    <message>
        <source>Sticker %1</source>
        <translation>Стикер %1</translation>
    </message>
</context>
<context>
    <name>TDLibRuntime</name>
    <message>
        <source>TDLib is not bundled in this build.</source>
        <translation>TDLib не входит в эту сборку.</translation>
    </message>
    <message>
        <source>TDLib could not be loaded: %1</source>
        <extracomment>%1 is the system loader&apos;s own message.</extracomment>
        <translation>Не удалось загрузить TDLib: %1</translation>
    </message>
    <message>
        <source>TDLib is missing the required function %1.</source>
        <extracomment>%1 is the name of a function of TDLib&apos;s library, such as td_create_client_id.</extracomment>
        <translation>В TDLib отсутствует необходимая функция %1.</translation>
    </message>
</context>
<context>
    <name>TelegramLoginView</name>
    <message>
        <source>Sign in</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Login Information</source>
        <extracomment>The group of fields where the sign-in details are typed.</extracomment>
        <translation>Данные для входа</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Use a different number</source>
        <translation>Ввести другой номер</translation>
    </message>
</context>
<context>
    <name>TelegramSession</name>
    <message>
        <source>Loading the bundled TDLib library…</source>
        <translation>Загрузка встроенной библиотеки TDLib…</translation>
    </message>
    <message>
        <source>TDLib loaded; creating a client…</source>
        <translation>TDLib загружена; создание клиента…</translation>
    </message>
    <message>
        <source>Client created; waiting for TDLib’s first event…</source>
        <translation>Клиент создан; ожидание первого события TDLib…</translation>
    </message>
    <message>
        <source>Unable to refresh chats.</source>
        <translation>Не удалось обновить чаты.</translation>
    </message>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>Telegram вернул неизвестную ошибку.</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>The sender&apos;s name on one&apos;s own messages.</extracomment>
        <translation>Вы</translation>
    </message>
    <message>
        <source>TDLib returned an unreadable response.</source>
        <translation>TDLib вернула нечитаемый ответ.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>В сети</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Личный чат</translation>
    </message>
</context>
<context>
    <name>TranscriptPlaceholder</name>
    <message>
        <source>No messages here yet.</source>
        <translation>Здесь пока нет сообщений.</translation>
    </message>
    <message>
        <source>Loading messages</source>
        <translation>Загрузка сообщений</translation>
    </message>
</context>
<context>
    <name>UserStore</name>
    <message>
        <source>Telegram user</source>
        <translation>Пользователь Telegram</translation>
    </message>
    <message>
        <source>Typing…</source>
        <extracomment>The chat&apos;s subtitle while the other person types.</extracomment>
        <translation>Печатает…</translation>
    </message>
    <message>
        <source>%1 is typing…</source>
        <extracomment>A group&apos;s subtitle while a member types; %1 is the member&apos;s name.</extracomment>
        <translation>%1 печатает…</translation>
    </message>
    <message>
        <source>Someone</source>
        <translation>Кто-то</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>В сети</translation>
    </message>
</context>
<context>
    <name>VideoPlayer</name>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Video, %1</source>
        <translation>Видео, %1</translation>
    </message>
</context>
<context>
    <name>VoicePlayer</name>
    <message>
        <source>Audio %1, %2</source>
        <translation>Аудио %1, %2</translation>
    </message>
    <message>
        <source>Voice message, %1</source>
        <translation>Голосовое сообщение, %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Verbs: the voice message&apos;s play button.</extracomment>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The time played and the whole length, as in &quot;0:12 of 1:05&quot;.</extracomment>
        <translation>%1 из %2</translation>
    </message>
</context>
<context>
    <name>VostApp</name>
    <message>
        <source>A compact Telegram client for the system tray.</source>
        <translation>Компактный клиент Telegram для системного трея.</translation>
    </message>
    <message>
        <source>Use the offline demo account.</source>
        <translation>Использовать демо-аккаунт без подключения к сети.</translation>
    </message>
    <message>
        <source>Another Vost is still closing or not answering. Start Vost again in a moment.</source>
        <translation>Другой экземпляр Vost ещё закрывается или не отвечает. Запустите Vost снова чуть позже.</translation>
    </message>
    <message>
        <source>Open Vost</source>
        <translation>Открыть Vost</translation>
    </message>
    <message>
        <source>Quit Vost</source>
        <translation>Выйти из Vost</translation>
    </message>
</context>
</TS>

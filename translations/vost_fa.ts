<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fa">
<context>
    <name>Announcer</name>
    <message>
        <source>New Telegram message</source>
        <translation>پیام تازهٔ تلگرام</translation>
    </message>
</context>
<context>
    <name>AppConfigurationErrorView</name>
    <message>
        <source>Vost needs to be reinstalled</source>
        <translation>Vost باید دوباره نصب شود</translation>
    </message>
    <message>
        <source>This copy of Vost is missing its application configuration. Please install the latest complete release from the app’s distributor.</source>
        <translation>پیکربندی این نسخه از Vost ناقص است. لطفاً آخرین نسخهٔ کامل را از توزیع‌کنندهٔ برنامه نصب کنید.</translation>
    </message>
</context>
<context>
    <name>ArchiveHeader</name>
    <message numerus="yes">
        <source>Archived chats, %n unread</source>
        <translation>
            <numerusform>گفتگوهای بایگانی‌شده، %n خوانده‌نشده</numerusform>
        </translation>
    </message>
    <message>
        <source>Archived chats</source>
        <translation>گفتگوهای بایگانی‌شده</translation>
    </message>
    <message>
        <source>Back to chats</source>
        <translation>بازگشت به گفتگوها</translation>
    </message>
</context>
<context>
    <name>AuthorizationStore</name>
    <message>
        <source>Waiting to start</source>
        <translation>در انتظار آغاز</translation>
    </message>
    <message>
        <source>Received TDLib event: %1</source>
        <extracomment>%1 is the name of TDLib&apos;s event, such as updateOption.</extracomment>
        <translation>رویداد TDLib دریافت شد: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>ناشناخته</translation>
    </message>
    <message>
        <source>The Telegram session is closing.</source>
        <translation>نشست تلگرام در حال بسته شدن است.</translation>
    </message>
    <message>
        <source>The Telegram session closed.</source>
        <translation>نشست تلگرام بسته شد.</translation>
    </message>
</context>
<context>
    <name>CallCard</name>
    <message>
        <source>Cancelled call</source>
        <translation>تماس لغوشده</translation>
    </message>
    <message>
        <source>Missed call</source>
        <translation>تماس بی‌پاسخ</translation>
    </message>
    <message>
        <source>Declined call</source>
        <translation>تماس ردشده</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <translation>تماس تصویری خروجی</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <translation>تماس تصویری ورودی</translation>
    </message>
    <message>
        <source>Outgoing call</source>
        <translation>تماس خروجی</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>تماس ورودی</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A call read aloud: %1 what kind of call, %2 how long it lasted.</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>ChatLayout</name>
    <message>
        <source>Chats</source>
        <translation>گفتگوها</translation>
    </message>
    <message>
        <source>Delete the chat with %1 and remove them from your contacts?</source>
        <translation>گفتگو با %1 حذف شود و از مخاطبین شما برداشته شود؟</translation>
    </message>
    <message>
        <source>Delete the chat “%1”?</source>
        <translation>گفتگوی «%1» حذف شود؟</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the chat.</extracomment>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>ChatListView</name>
    <message>
        <source>Sidebar</source>
        <translation>نوار کناری</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>جستجو</translation>
    </message>
    <message>
        <source>Chat list</source>
        <translation>فهرست گفتگوها</translation>
    </message>
    <message>
        <source>Scroll chats</source>
        <translation>پیمایش گفتگوها</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>نتیجه‌ای پیدا نشد</translation>
    </message>
    <message>
        <source>No chats yet</source>
        <translation>هنوز گفتگویی ندارید</translation>
    </message>
</context>
<context>
    <name>ChatMenu</name>
    <message>
        <source>Chat actions</source>
        <translation>کارهای گفتگو</translation>
    </message>
    <message>
        <source>Delete chat</source>
        <translation>حذف گفتگو</translation>
    </message>
    <message>
        <source>Delete chat and contact</source>
        <translation>حذف گفتگو و مخاطب</translation>
    </message>
</context>
<context>
    <name>ChatRow</name>
    <message>
        <source>Deleting…</source>
        <translation>در حال حذف…</translation>
    </message>
    <message>
        <source>Draft: %1</source>
        <extracomment>%1 is the start of the unsent text of the chat.</extracomment>
        <translation>پیش‌نویس: %1</translation>
    </message>
    <message>
        <source>secret chat</source>
        <extracomment>Read aloud after a chat&apos;s title, like the other states of a chat here.</extracomment>
        <translation>گفتگوی محرمانه</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>سنجاق‌شده</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>بی‌صدا</translation>
    </message>
    <message>
        <source>archived</source>
        <translation>بایگانی‌شده</translation>
    </message>
    <message numerus="yes">
        <source>%n unread</source>
        <extracomment>How many messages of the chat are unread.</extracomment>
        <translation>
            <numerusform>%n خوانده‌نشده</numerusform>
        </translation>
    </message>
    <message>
        <source>marked unread</source>
        <translation>علامت‌گذاری به‌عنوان خوانده‌نشده</translation>
    </message>
</context>
<context>
    <name>ChatSearchBar</name>
    <message>
        <source>Search in chat</source>
        <translation>جستجو در گفتگو</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>در حال جستجو…</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>نتیجه‌ای پیدا نشد</translation>
    </message>
    <message>
        <source>Search failed</source>
        <translation>جستجو ناموفق بود</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n</source>
        <extracomment>Which search result shows, of how many: &quot;3 of 12&quot;.</extracomment>
        <translation>
            <numerusform>%1 از %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Older result</source>
        <translation>نتیجهٔ قدیمی‌تر</translation>
    </message>
    <message>
        <source>Newer result</source>
        <translation>نتیجهٔ جدیدتر</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>بستن جستجو</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Pasted image %1.png</source>
        <extracomment>The file name of a pasted image; %1 is a short random code.</extracomment>
        <translation>تصویر چسبانده‌شده %1.png</translation>
    </message>
</context>
<context>
    <name>CodeBlock</name>
    <message>
        <source>Copy</source>
        <extracomment>A button on a block of code in a message: copies the code.</extracomment>
        <translation>کپی</translation>
    </message>
    <message>
        <source>Copies the %1 code</source>
        <translation>کد %1 را کپی می‌کند</translation>
    </message>
    <message>
        <source>Copies the code</source>
        <translation>کد را کپی می‌کند</translation>
    </message>
    <message>
        <source>%1 code: %2</source>
        <extracomment>How screen readers name a block of code in a message; %1 is the code.</extracomment>
        <translation>کد %1: %2</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>کد: %1</translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Composer</source>
        <translation>نوشتن پیام</translation>
    </message>
    <message>
        <source>Attach</source>
        <extracomment>A verb: the button that adds files.</extracomment>
        <translation>پیوست</translation>
    </message>
    <message>
        <source>Scroll message text</source>
        <translation>پیمایش متن پیام</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A noun: the text being written.</extracomment>
        <translation>پیام</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>شکلک</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>استیکرها</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>The send button while a message is edited: a verb.</extracomment>
        <translation>ذخیره</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>ارسال</translation>
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
        <translation>ویرایش پیام</translation>
    </message>
    <message>
        <source>Reply to %1</source>
        <translation>پاسخ به %1</translation>
    </message>
    <message>
        <source>Cancel editing</source>
        <translation>لغو ویرایش</translation>
    </message>
    <message>
        <source>Cancel reply</source>
        <translation>لغو پاسخ</translation>
    </message>
</context>
<context>
    <name>ComposerMenu</name>
    <message>
        <source>Spelling</source>
        <translation>املا</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>The composer&apos;s context menu without a misspelt word: the editing commands.</extracomment>
        <translation>ویرایش</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <extracomment>Keeps a word the spelling check does not know from being marked again.</extracomment>
        <translation>افزودن به واژه‌نامه</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>برش</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کپی</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>چسباندن</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>انتخاب همه</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
    </message>
</context>
<context>
    <name>ConnectionStatus</name>
    <message>
        <source>Waiting for network…</source>
        <extracomment>Above the chat list while the computer has no network connection</extracomment>
        <translation>در انتظار شبکه…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>Above the chat list while the link to Telegram is being made</extracomment>
        <translation>در حال اتصال…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>Above the chat list while what happened offline is being fetched</extracomment>
        <translation>در حال به‌روزرسانی…</translation>
    </message>
</context>
<context>
    <name>ContactCard</name>
    <message>
        <source>Contact %1, %2</source>
        <translation>مخاطب %1، %2</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to the person on the card.</extracomment>
        <translation>پیام دادن</translation>
    </message>
</context>
<context>
    <name>ContactMenu</name>
    <message>
        <source>Contact actions</source>
        <translation>کارهای مخاطب</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to this contact.</extracomment>
        <translation>پیام دادن</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>حذف مخاطب</translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>%1, online</source>
        <translation>%1، آنلاین</translation>
    </message>
    <message>
        <source>online</source>
        <extracomment>Said of a contact who is using Telegram right now.</extracomment>
        <translation>آنلاین</translation>
    </message>
</context>
<context>
    <name>ContactStore</name>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>تلگرام خطای ناشناخته‌ای برگرداند.</translation>
    </message>
    <message>
        <source>Telegram took too long to respond. A submitted contact may already be saved. Check Contacts or try again.</source>
        <translation>پاسخ تلگرام بیش از حد طول کشید. ممکن است مخاطب فرستاده‌شده ذخیره شده باشد. مخاطبین را بررسی کنید یا دوباره تلاش کنید.</translation>
    </message>
    <message>
        <source>Enter a first name. First and last names can each contain up to 64 characters.</source>
        <translation>نام را وارد کنید. نام و نام خانوادگی هر کدام حداکثر ۶۴ نویسه دارند.</translation>
    </message>
    <message>
        <source>Enter a valid phone number including + and the country code (for example, +44 7700 900123).</source>
        <translation>یک شمارهٔ تلفن معتبر با + و کد کشور وارد کنید (برای مثال ‎+44 7700 900123‎).</translation>
    </message>
    <message>
        <source>Enter a Telegram username, such as @username, using letters, numbers and underscores.</source>
        <translation>یک نام کاربری تلگرام مانند ‎@username‎ وارد کنید، با حروف، عدد و زیرخط.</translation>
    </message>
    <message>
        <source>The contact was saved, but the chat could not be opened. Try opening it from Contacts.</source>
        <translation>مخاطب ذخیره شد، اما گفتگو باز نشد. آن را از مخاطبین باز کنید.</translation>
    </message>
    <message>
        <source>No Telegram account could be found for that number. Check the country code or try their username; Telegram privacy settings can prevent phone-number lookup.</source>
        <translation>هیچ حساب تلگرامی برای این شماره پیدا نشد. کد کشور را بررسی کنید یا نام کاربری را امتحان کنید؛ تنظیمات حریم خصوصی تلگرام ممکن است جلوی جستجو با شماره را بگیرد.</translation>
    </message>
    <message>
        <source>Telegram could not complete this action.</source>
        <translation>تلگرام نتوانست این کار را انجام دهد.</translation>
    </message>
    <message>
        <source>The chat was deleted, but the contact could not be removed.</source>
        <translation>گفتگو حذف شد، اما مخاطب حذف نشد.</translation>
    </message>
    <message>
        <source>Telegram contact</source>
        <translation>مخاطب تلگرام</translation>
    </message>
</context>
<context>
    <name>ContentTexts</name>
    <message>
        <source>📷 Photo</source>
        <translation>📷 عکس</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>عکس</translation>
    </message>
    <message>
        <source>🎬 Video</source>
        <translation>🎬 ویدیو</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ویدیو</translation>
    </message>
    <message>
        <source>🎤 Voice message</source>
        <translation>🎤 پیام صوتی</translation>
    </message>
    <message>
        <source>Voice message</source>
        <translation>پیام صوتی</translation>
    </message>
    <message>
        <source>Video message</source>
        <translation>پیام ویدیویی</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>استیکر</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>گیف</translation>
    </message>
    <message>
        <source>📎 Document</source>
        <translation>📎 فایل</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>فایل</translation>
    </message>
    <message>
        <source>🎵 Audio</source>
        <translation>🎵 موسیقی</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>موسیقی</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>تماس</translation>
    </message>
    <message>
        <source>📍 Location</source>
        <translation>📍 موقعیت مکانی</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>مخاطب</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>نظرسنجی</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>پیام</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>شکلک</translation>
    </message>
    <message>
        <source>Unsupported message</source>
        <translation>پیام پشتیبانی‌نشده</translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation>هنوز پیامی نیست</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>گفتگوی خصوصی</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>گروه</translation>
    </message>
    <message>
        <source>Group or channel</source>
        <translation>گروه یا کانال</translation>
    </message>
    <message>
        <source>Secret chat</source>
        <translation>گفتگوی محرمانه</translation>
    </message>
</context>
<context>
    <name>ConversationView</name>
    <message>
        <source>Conversation with %1</source>
        <translation>گفتگو با %1</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>پیام‌ها</translation>
    </message>
    <message>
        <source>Scroll messages</source>
        <translation>پیمایش پیام‌ها</translation>
    </message>
    <message>
        <source>Loading older messages</source>
        <translation>در حال بارگیری پیام‌های قدیمی‌تر</translation>
    </message>
    <message>
        <source>Start of the conversation</source>
        <translation>آغاز گفتگو</translation>
    </message>
    <message>
        <source>Delete this message for everyone?</source>
        <translation>این پیام برای همه حذف شود؟</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the message.</extracomment>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Search in chat</source>
        <translation>جستجو در گفتگو</translation>
    </message>
</context>
<context>
    <name>DateTexts</name>
    <message>
        <source>Yesterday</source>
        <translation>دیروز</translation>
    </message>
</context>
<context>
    <name>DiceCard</name>
    <message>
        <source>%1 rolled %2</source>
        <extracomment>%1 is the die&apos;s emoji (a die, a dart, a ball), %2 the number it came up with.</extracomment>
        <translation>%1 عدد %2 آمد</translation>
    </message>
</context>
<context>
    <name>DocumentCard</name>
    <message>
        <source>Document %1, %2</source>
        <translation>فایل %1، %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the file has come and its whole size, as in &quot;1.2 MB of 5 MB&quot;.</extracomment>
        <translation>%1 از %2</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the file with its application.</extracomment>
        <translation>باز کردن</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the file to a folder.</extracomment>
        <translation>ذخیره</translation>
    </message>
</context>
<context>
    <name>DownloadRing</name>
    <message>
        <source>Downloading, %1 %</source>
        <extracomment>%1 is how much has come, in percent.</extracomment>
        <translation>در حال بارگیری، %1٪</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>در حال بارگیری</translation>
    </message>
</context>
<context>
    <name>EmojiPicker</name>
    <message>
        <source>Emoji picker</source>
        <translation>انتخاب شکلک</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Emoji sent lately.</extracomment>
        <translation>اخیر</translation>
    </message>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>شکلک‌ها و احساسات</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>مردم و بدن</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>حیوانات و طبیعت</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>غذا و نوشیدنی</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>سفر و مکان‌ها</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>فعالیت‌ها</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>اشیا</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>نمادها</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>پرچم‌ها</translation>
    </message>
    <message>
        <source>Search emoji</source>
        <translation>جستجوی شکلک</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>شکلک</translation>
    </message>
    <message>
        <source>Scroll emoji</source>
        <translation>پیمایش شکلک‌ها</translation>
    </message>
    <message>
        <source>No emoji found</source>
        <translation>شکلکی پیدا نشد</translation>
    </message>
</context>
<context>
    <name>EmptyConversationView</name>
    <message>
        <source>Conversation</source>
        <translation>گفتگو</translation>
    </message>
    <message>
        <source>Choose a Telegram chat or contact.</source>
        <translation>یک گفتگو یا مخاطب تلگرام را انتخاب کنید.</translation>
    </message>
</context>
<context>
    <name>ErrorBanner</name>
    <message>
        <source>Dismiss</source>
        <extracomment>A verb: close the error message.</extracomment>
        <translation>بستن</translation>
    </message>
</context>
<context>
    <name>ErrorTexts</name>
    <message>
        <source>That phone number isn’t valid. Enter it with + and the country code, for example +44 7700 900123.</source>
        <translation>این شمارهٔ تلفن معتبر نیست. آن را با + و کد کشور وارد کنید، برای مثال ‎+44 7700 900123‎.</translation>
    </message>
    <message>
        <source>This phone number is banned from Telegram.</source>
        <translation>این شمارهٔ تلفن در تلگرام مسدود شده است.</translation>
    </message>
    <message>
        <source>This number has asked for too many codes. Try again later.</source>
        <translation>برای این شماره کدهای زیادی درخواست شده است. بعداً دوباره تلاش کنید.</translation>
    </message>
    <message>
        <source>This number has no Telegram account yet. Sign up in Telegram’s phone app first.</source>
        <translation>این شماره هنوز حساب تلگرام ندارد. ابتدا در برنامهٔ تلگرام تلفن همراه ثبت‌نام کنید.</translation>
    </message>
    <message>
        <source>That code isn’t right. Check it and try again.</source>
        <translation>این کد درست نیست. آن را بررسی کنید و دوباره تلاش کنید.</translation>
    </message>
    <message>
        <source>Enter the code Telegram sent you.</source>
        <translation>کدی را که تلگرام برایتان فرستاد وارد کنید.</translation>
    </message>
    <message>
        <source>That code has expired. Use a different number, or enter this one again for a new code.</source>
        <translation>این کد منقضی شده است. از شمارهٔ دیگری استفاده کنید یا برای کد تازه همین شماره را دوباره وارد کنید.</translation>
    </message>
    <message>
        <source>That password isn’t right. Try again.</source>
        <translation>این رمز عبور درست نیست. دوباره تلاش کنید.</translation>
    </message>
    <message>
        <source>Enter your two-step verification password.</source>
        <translation>رمز عبور تأیید دومرحله‌ای خود را وارد کنید.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a while, then try again.</source>
        <translation>تلاش‌ها بیش از حد بوده است. کمی صبر کنید و دوباره تلاش کنید.</translation>
    </message>
    <message>
        <source>Signing in has to start again. Enter your number once more.</source>
        <translation>ورود باید از نو آغاز شود. شمارهٔ خود را دوباره وارد کنید.</translation>
    </message>
    <message>
        <source>Telegram refused this copy of Vost. Install the latest release.</source>
        <translation>تلگرام این نسخه از Vost را نپذیرفت. آخرین نسخه را نصب کنید.</translation>
    </message>
    <message>
        <source>Nobody on Telegram has that username.</source>
        <translation>هیچ‌کس در تلگرام این نام کاربری را ندارد.</translation>
    </message>
    <message>
        <source>That isn’t a valid username. Usernames use letters, numbers and underscores.</source>
        <translation>این نام کاربری معتبر نیست. نام‌های کاربری از حروف، عدد و زیرخط تشکیل می‌شوند.</translation>
    </message>
    <message>
        <source>Enter a first name.</source>
        <translation>نام را وارد کنید.</translation>
    </message>
    <message>
        <source>That first name can’t be used. Try a shorter one.</source>
        <translation>این نام قابل استفاده نیست. نام کوتاه‌تری امتحان کنید.</translation>
    </message>
    <message>
        <source>That last name can’t be used. Try a shorter one.</source>
        <translation>این نام خانوادگی قابل استفاده نیست. نام خانوادگی کوتاه‌تری امتحان کنید.</translation>
    </message>
    <message>
        <source>Their privacy settings don’t allow this. Try their username instead.</source>
        <translation>تنظیمات حریم خصوصی این شخص اجازهٔ این کار را نمی‌دهد. به‌جای آن نام کاربری‌اش را امتحان کنید.</translation>
    </message>
    <message>
        <source>That person can’t be added as a contact.</source>
        <translation>این شخص را نمی‌توان به مخاطبین افزود.</translation>
    </message>
</context>
<context>
    <name>FilePanel</name>
    <message>
        <source>Attach files</source>
        <translation>پیوست فایل‌ها</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>ذخیره</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Today</source>
        <translation>امروز</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>دیروز</translation>
    </message>
</context>
<context>
    <name>FormattedBody</name>
    <message>
        <source>Links to %1</source>
        <extracomment>The addresses behind the links of a message&apos;s text, for screen readers.</extracomment>
        <translation>پیوند به %1</translation>
    </message>
    <message>
        <source>Quotation</source>
        <extracomment>Said by screen readers of a quoted paragraph in a message.</extracomment>
        <translation>نقل قول</translation>
    </message>
</context>
<context>
    <name>ForwardDialog</name>
    <message>
        <source>Forward to</source>
        <extracomment>The title of the list of chats a message can be forwarded to.</extracomment>
        <translation>هدایت به</translation>
    </message>
    <message>
        <source>Search chats</source>
        <translation>جستجوی گفتگوها</translation>
    </message>
    <message>
        <source>Chats to forward to</source>
        <translation>گفتگوهای مقصد</translation>
    </message>
    <message>
        <source>Scroll chats to forward to</source>
        <translation>پیمایش گفتگوهای مقصد</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>نتیجه‌ای پیدا نشد</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotificationPoster</name>
    <message>
        <source>Open</source>
        <translation>باز کردن</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>A notification&apos;s action that answers its message.</extracomment>
        <translation>پاسخ</translation>
    </message>
    <message>
        <source>Reply…</source>
        <translation>پاسخ…</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>علامت‌گذاری به‌عنوان خوانده‌شده</translation>
    </message>
</context>
<context>
    <name>GlobalShortcut</name>
    <message>
        <source>Open or close Vost</source>
        <translation>باز یا بسته کردن Vost</translation>
    </message>
</context>
<context>
    <name>LanguageChoice</name>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language that follows the system&apos;s own.</extracomment>
        <translation>سیستم</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>زبان</translation>
    </message>
</context>
<context>
    <name>LocationCard</name>
    <message>
        <source>Location %1</source>
        <translation>موقعیت مکانی %1</translation>
    </message>
    <message>
        <source>Open map</source>
        <translation>باز کردن نقشه</translation>
    </message>
</context>
<context>
    <name>LoginPresenter</name>
    <message>
        <source>We’ve sent the code for %1 to the Telegram app on your other device.</source>
        <translation>کد مربوط به %1 را به برنامهٔ تلگرام در دستگاه دیگرتان فرستادیم.</translation>
    </message>
    <message>
        <source>We’ve sent the code to %1 by SMS.</source>
        <translation>کد را با پیامک به %1 فرستادیم.</translation>
    </message>
    <message>
        <source>Telegram is calling %1 to tell you the code.</source>
        <translation>تلگرام با %1 تماس می‌گیرد تا کد را به شما بگوید.</translation>
    </message>
    <message>
        <source>Telegram is calling %1: the last digits of the calling number are the code.</source>
        <translation>تلگرام با %1 تماس می‌گیرد: رقم‌های آخر شمارهٔ تماس‌گیرنده همان کد است.</translation>
    </message>
    <message>
        <source>The code for %1 is waiting on fragment.com.</source>
        <translation>کد مربوط به %1 در fragment.com منتظر شماست.</translation>
    </message>
    <message>
        <source>The code for %1 was sent to Telegram on your phone.</source>
        <translation>کد مربوط به %1 به تلگرام روی تلفن شما فرستاده شد.</translation>
    </message>
    <message>
        <source>The code was sent for %1.</source>
        <translation>کد برای %1 فرستاده شد.</translation>
    </message>
</context>
<context>
    <name>LoginTexts</name>
    <message>
        <source>Preparing Telegram</source>
        <translation>در حال آماده‌سازی تلگرام</translation>
    </message>
    <message>
        <source>Starting the secure TDLib connection…</source>
        <translation>در حال برقراری اتصال امن TDLib…</translation>
    </message>
    <message>
        <source>Sign in to Telegram</source>
        <translation>ورود به تلگرام</translation>
    </message>
    <message>
        <source>Enter the telephone number associated with your Telegram account, including its international country code.</source>
        <translation>شمارهٔ تلفن حساب تلگرام خود را همراه با کد بین‌المللی کشور وارد کنید.</translation>
    </message>
    <message>
        <source>Telephone number, including country code</source>
        <translation>شمارهٔ تلفن، همراه با کد کشور</translation>
    </message>
    <message>
        <source>Enter your verification code</source>
        <translation>کد تأیید خود را وارد کنید</translation>
    </message>
    <message>
        <source>Telegram sent a code to one of your existing Telegram sessions or by another supported method.</source>
        <translation>تلگرام کدی را به یکی از نشست‌های فعال تلگرام شما یا از راه دیگری فرستاد.</translation>
    </message>
    <message>
        <source>Telegram verification code</source>
        <translation>کد تأیید تلگرام</translation>
    </message>
    <message>
        <source>Two-step verification</source>
        <translation>تأیید دومرحله‌ای</translation>
    </message>
    <message>
        <source>Your account uses an additional password. Enter it to complete sign-in.</source>
        <translation>حساب شما یک رمز عبور اضافه دارد. برای کامل شدن ورود آن را وارد کنید.</translation>
    </message>
    <message>
        <source>Two-step verification password</source>
        <translation>رمز عبور تأیید دومرحله‌ای</translation>
    </message>
    <message>
        <source>Telegram is unavailable</source>
        <translation>تلگرام در دسترس نیست</translation>
    </message>
    <message>
        <source>The app could not start its Telegram connection.</source>
        <translation>برنامه نتوانست اتصال به تلگرام را آغاز کند.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <extracomment>The two-step password&apos;s hint, as its owner wrote it.</extracomment>
        <translation>راهنما: %1</translation>
    </message>
    <message>
        <source>Verification codes and passwords are sent directly to TDLib and are never saved by this app.</source>
        <translation>کدهای تأیید و رمزهای عبور مستقیم به TDLib فرستاده می‌شوند و این برنامه هرگز آن‌ها را ذخیره نمی‌کند.</translation>
    </message>
</context>
<context>
    <name>MessageBubble</name>
    <message>
        <source>sending</source>
        <extracomment>A message&apos;s delivery state, read aloud after its time; the next two as well.</extracomment>
        <translation>در حال ارسال</translation>
    </message>
    <message>
        <source>read</source>
        <translation>خوانده شد</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>ارسال شد</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>You</source>
        <translation>شما</translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Said of a message that was changed after it was sent.</extracomment>
        <translation>ویرایش‌شده</translation>
    </message>
    <message>
        <source>%1 %2, yours</source>
        <extracomment>A reaction read aloud: %1 is its emoji, %2 how many reacted with it; you did too.</extracomment>
        <translation>%1 %2، شما هم</translation>
    </message>
    <message>
        <source>Unread messages</source>
        <translation>پیام‌های خوانده‌نشده</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The button that opens a message&apos;s actions.</extracomment>
        <translation>بیشتر</translation>
    </message>
    <message>
        <source>Forwarded from %1</source>
        <translation>هدایت‌شده از %1</translation>
    </message>
    <message>
        <source>Link preview: %1</source>
        <translation>پیش‌نمایش پیوند: %1</translation>
    </message>
    <message>
        <source>edited  %1</source>
        <extracomment>An edited message&apos;s time; %1 is the time, such as 14:05.</extracomment>
        <translation>ویرایش‌شده  %1</translation>
    </message>
</context>
<context>
    <name>MessageListModel</name>
    <message>
        <source>Photo</source>
        <translation>عکس</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>گیف</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ویدیو</translation>
    </message>
    <message>
        <source>File</source>
        <translation>فایل</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>Message actions</source>
        <translation>کارهای پیام</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>واکنش‌ها</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>Verbs: the actions of the message menu, down to Delete.</extracomment>
        <translation>پاسخ</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>ویرایش</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>هدایت</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کپی</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>hidden text</source>
        <extracomment>Read by screen readers in place of a spoiler, a part of a message hidden until clicked.</extracomment>
        <translation>متن پنهان</translation>
    </message>
</context>
<context>
    <name>NewChatView</name>
    <message>
        <source>New chat</source>
        <translation>گفتگوی جدید</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>بازگشت</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>جستجوی مخاطبین</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>مخاطبین</translation>
    </message>
    <message>
        <source>Scroll contacts</source>
        <translation>پیمایش مخاطبین</translation>
    </message>
    <message>
        <source>Found by Telegram</source>
        <translation>یافته‌های تلگرام</translation>
    </message>
    <message>
        <source>No contacts found</source>
        <translation>مخاطبی پیدا نشد</translation>
    </message>
    <message>
        <source>No contacts yet</source>
        <translation>هنوز مخاطبی ندارید</translation>
    </message>
    <message>
        <source>Remove %1 from your contacts?</source>
        <translation>%1 از مخاطبین شما حذف شود؟</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>حذف مخاطب</translation>
    </message>
</context>
<context>
    <name>NewContactForms</name>
    <message>
        <source>Add contact</source>
        <translation>افزودن مخاطب</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>نام</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>نام خانوادگی</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>شمارهٔ تلفن</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A noun: a private note about the new contact.</extracomment>
        <translation>یادداشت</translation>
    </message>
    <message>
        <source>Open username</source>
        <extracomment>A form&apos;s title: open a chat by someone&apos;s public username.</extracomment>
        <translation>باز کردن نام کاربری</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>نام کاربری</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: the button that opens the chat with that username.</extracomment>
        <translation>باز کردن</translation>
    </message>
    <message>
        <source>Opening the chat</source>
        <translation>در حال باز کردن گفتگو</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
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
        <translation>رفتن به تازه‌ترین پیام</translation>
    </message>
    <message numerus="yes">
        <source>↓ %n new</source>
        <extracomment>On the button under the transcript: how many messages arrived below, with an arrow pointing down to them.</extracomment>
        <translation>
            <numerusform>↓ %n جدید</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <extracomment>The same button read aloud: how many messages arrived below.</extracomment>
        <translation>
            <numerusform>%n پیام جدید</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the first new message</source>
        <translation>رفتن به اولین پیام جدید</translation>
    </message>
</context>
<context>
    <name>PendingStrip</name>
    <message>
        <source>Files to send</source>
        <translation>فایل‌های آمادهٔ ارسال</translation>
    </message>
    <message>
        <source>Scroll files to send</source>
        <translation>پیمایش فایل‌های آمادهٔ ارسال</translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation>عکس %1</translation>
    </message>
    <message>
        <source>Document %1, %2</source>
        <translation>فایل %1، %2</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>برداشتن %1</translation>
    </message>
    <message>
        <source>Send as file</source>
        <translation>ارسال به‌صورت فایل</translation>
    </message>
    <message>
        <source>%1 is empty and can’t be sent.</source>
        <translation>%1 خالی است و نمی‌توان آن را فرستاد.</translation>
    </message>
    <message>
        <source>%1 is a folder; choose the files in it.</source>
        <translation>%1 یک پوشه است؛ فایل‌های درون آن را انتخاب کنید.</translation>
    </message>
    <message>
        <source>%1 is larger than 2 GB, more than Telegram takes.</source>
        <translation>%1 بزرگ‌تر از ۲ گیگابایت است، بیش از آنچه تلگرام می‌پذیرد.</translation>
    </message>
    <message>
        <source>%1 can’t be read.</source>
        <translation>%1 خوانده نمی‌شود.</translation>
    </message>
</context>
<context>
    <name>PhotoAlbum</name>
    <message>
        <source>Photo</source>
        <translation>عکس</translation>
    </message>
    <message numerus="yes">
        <source>Album, %n photos</source>
        <translation>
            <numerusform>آلبوم، %n عکس</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PhotoViewer</name>
    <message>
        <source>Photo viewer</source>
        <translation>نمایشگر عکس</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>عکس %1 از %2</translation>
    </message>
    <message>
        <source>Video %1 of %2</source>
        <translation>ویدیوی %1 از %2</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous picture of the album.</extracomment>
        <translation>قبلی</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next picture of the album.</extracomment>
        <translation>بعدی</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the picture to a folder.</extracomment>
        <translation>ذخیره</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the picture with its application.</extracomment>
        <translation>باز کردن</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>بستن</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The picture shown and how many the album has, as in &quot;2 of 5&quot;.</extracomment>
        <translation>%1 از %2</translation>
    </message>
</context>
<context>
    <name>PollCard</name>
    <message>
        <source>Quiz</source>
        <translation>آزمونک</translation>
    </message>
    <message>
        <source>Anonymous poll</source>
        <translation>نظرسنجی ناشناس</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>نظرسنجی</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1، بسته‌شده</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <extracomment>A poll&apos;s answer read aloud: %1 is the answer, %2 the share of votes in percent.</extracomment>
        <translation>%1، %2٪</translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <extracomment>How many people voted in the poll.</extracomment>
        <translation>
            <numerusform>%n رأی</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreferencesView</name>
    <message>
        <source>Preferences</source>
        <translation>تنظیمات</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>بازگشت</translation>
    </message>
    <message>
        <source>Scroll preferences</source>
        <translation>پیمایش تنظیمات</translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>Titles of the preferences&apos; sections.</extracomment>
        <translation>ظاهر</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>The appearance that follows the system&apos;s light or dark setting.</extracomment>
        <translation>سیستم</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>روشن</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>تیره</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>صداها</translation>
    </message>
    <message>
        <source>Play sounds</source>
        <translation>پخش صداها</translation>
    </message>
    <message>
        <source>Sound pack</source>
        <translation>بستهٔ صدا</translation>
    </message>
    <message>
        <source>Crystal</source>
        <extracomment>Names of the sound packs.</extracomment>
        <translation>کریستال</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>ملایم</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>کلاسیک</translation>
    </message>
    <message>
        <source>Playful</source>
        <translation>شاد</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>اعلان‌ها</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>نمایش اعلان‌ها</translation>
    </message>
    <message>
        <source>Start Vost when I sign in to my computer</source>
        <translation>اجرای Vost هنگام ورود به رایانه</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>حساب</translation>
    </message>
    <message>
        <source>Change account</source>
        <extracomment>A verb: sign out and sign in to another account.</extracomment>
        <translation>تغییر حساب</translation>
    </message>
    <message>
        <source>Demo account: nothing leaves this computer</source>
        <translation>حساب نمایشی: هیچ چیز از این رایانه بیرون نمی‌رود</translation>
    </message>
    <message>
        <source>Vost %1</source>
        <extracomment>%1 is the version, such as 0.1.0.</extracomment>
        <translation>Vost %1</translation>
    </message>
    <message>
        <source>Sign out of this account and sign in to another?</source>
        <translation>از این حساب خارج شوید و با حساب دیگری وارد شوید؟</translation>
    </message>
    <message>
        <source>Check spelling</source>
        <extracomment>Whether the composer underlines misspelt words.</extracomment>
        <translation>بررسی املا</translation>
    </message>
</context>
<context>
    <name>ReplyQuote</name>
    <message>
        <source>You</source>
        <translation>شما</translation>
    </message>
    <message>
        <source>Message not found</source>
        <translation>پیام پیدا نشد</translation>
    </message>
    <message>
        <source>Reply to %1: %2</source>
        <extracomment>A quoted message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>پاسخ به %1: %2</translation>
    </message>
    <message>
        <source>a message</source>
        <translation>یک پیام</translation>
    </message>
</context>
<context>
    <name>ShortcutChoice</name>
    <message>
        <source>Press keys…</source>
        <extracomment>Shown on the shortcut&apos;s button while it waits for a key combination.</extracomment>
        <translation>کلیدها را فشار دهید…</translation>
    </message>
    <message>
        <source>None</source>
        <comment>shortcut</comment>
        <extracomment>On the shortcut&apos;s button when no shortcut is chosen.</extracomment>
        <translation>هیچ</translation>
    </message>
    <message>
        <source>Shortcut to open Vost</source>
        <translation>میان‌بر باز کردن Vost</translation>
    </message>
    <message>
        <source>Taken by another program</source>
        <translation>در اختیار برنامه‌ای دیگر است</translation>
    </message>
    <message>
        <source>Not available on this desktop</source>
        <translation>در این میزکار در دسترس نیست</translation>
    </message>
    <message>
        <source>Not allowed by the desktop</source>
        <extracomment>The desktop was asked for the shortcut and did not give it.</extracomment>
        <translation>میزکار اجازه نداد</translation>
    </message>
</context>
<context>
    <name>SidebarToolbar</name>
    <message>
        <source>New chat</source>
        <translation>گفتگوی جدید</translation>
    </message>
    <message>
        <source>New chat (Ctrl+N)</source>
        <translation>گفتگوی جدید (Ctrl+N)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>تنظیمات</translation>
    </message>
    <message>
        <source>Preferences (Ctrl+,)</source>
        <translation>تنظیمات (Ctrl+,)</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message numerus="yes">
        <source>Vost, %n unread messages</source>
        <extracomment>The tray icon&apos;s accessible name.</extracomment>
        <translation>
            <numerusform>Vost، %n پیام خوانده‌نشده</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for network…</source>
        <extracomment>The tray item&apos;s tool tip while the computer has no network connection</extracomment>
        <translation>در انتظار شبکه…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>The tray item&apos;s tool tip while the link to Telegram is being made</extracomment>
        <translation>در حال اتصال…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>The tray item&apos;s tool tip while what happened offline is being fetched</extracomment>
        <translation>در حال به‌روزرسانی…</translation>
    </message>
</context>
<context>
    <name>StickerPicker</name>
    <message>
        <source>Sticker picker</source>
        <translation>انتخاب استیکر</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Tabs of the sticker picker: stickers sent lately, then installed, then popular ones.</extracomment>
        <translation>اخیر</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>نصب‌شده</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>پرطرفدار</translation>
    </message>
    <message>
        <source>Search stickers</source>
        <translation>جستجوی استیکر</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>استیکرها</translation>
    </message>
    <message>
        <source>Scroll stickers</source>
        <translation>پیمایش استیکرها</translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation>استیکر %1</translation>
    </message>
    <message>
        <source>No stickers found</source>
        <translation>استیکری پیدا نشد</translation>
    </message>
    <message>
        <source>No stickers here yet</source>
        <translation>هنوز استیکری اینجا نیست</translation>
    </message>
    <message>
        <source>Loading stickers</source>
        <translation>در حال بارگیری استیکرها</translation>
    </message>
</context>
<context>
    <name>StickerStore</name>
    <message>
        <source>Unable to load stickers.</source>
        <translation>بارگیری استیکرها ممکن نشد.</translation>
    </message>
</context>
<context>
    <name>StickerView</name>
    <message>
        <source>Sticker %1</source>
        <translation>استیکر %1</translation>
    </message>
</context>
<context>
    <name>TDLibRuntime</name>
    <message>
        <source>TDLib is not bundled in this build.</source>
        <translation>TDLib در این نسخه گنجانده نشده است.</translation>
    </message>
    <message>
        <source>TDLib could not be loaded: %1</source>
        <extracomment>%1 is the system loader&apos;s own message.</extracomment>
        <translation>TDLib بارگذاری نشد: %1</translation>
    </message>
    <message>
        <source>TDLib is missing the required function %1.</source>
        <extracomment>%1 is the name of a function of TDLib&apos;s library, such as td_create_client_id.</extracomment>
        <translation>تابع لازم %1 در TDLib وجود ندارد.</translation>
    </message>
</context>
<context>
    <name>TelegramLoginView</name>
    <message>
        <source>Sign in</source>
        <translation>ورود</translation>
    </message>
    <message>
        <source>Login Information</source>
        <extracomment>The group of fields where the sign-in details are typed.</extracomment>
        <translation>اطلاعات ورود</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>ادامه</translation>
    </message>
    <message>
        <source>Use a different number</source>
        <translation>استفاده از شمارهٔ دیگر</translation>
    </message>
</context>
<context>
    <name>TelegramSession</name>
    <message>
        <source>Loading the bundled TDLib library…</source>
        <translation>در حال بارگذاری کتابخانهٔ TDLib…</translation>
    </message>
    <message>
        <source>TDLib loaded; creating a client…</source>
        <translation>TDLib بارگذاری شد؛ در حال ساختن کلاینت…</translation>
    </message>
    <message>
        <source>Client created; waiting for TDLib’s first event…</source>
        <translation>کلاینت ساخته شد؛ در انتظار نخستین رویداد TDLib…</translation>
    </message>
    <message>
        <source>Unable to refresh chats.</source>
        <translation>به‌روزرسانی گفتگوها ممکن نشد.</translation>
    </message>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>تلگرام خطای ناشناخته‌ای برگرداند.</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>The sender&apos;s name on one&apos;s own messages.</extracomment>
        <translation>شما</translation>
    </message>
    <message>
        <source>TDLib returned an unreadable response.</source>
        <translation>TDLib پاسخی ناخوانا برگرداند.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>آنلاین</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>گفتگوی خصوصی</translation>
    </message>
</context>
<context>
    <name>TranscriptPlaceholder</name>
    <message>
        <source>No messages here yet.</source>
        <translation>هنوز پیامی اینجا نیست.</translation>
    </message>
    <message>
        <source>Loading messages</source>
        <translation>در حال بارگیری پیام‌ها</translation>
    </message>
</context>
<context>
    <name>UserStore</name>
    <message>
        <source>Telegram user</source>
        <translation>کاربر تلگرام</translation>
    </message>
    <message>
        <source>Typing…</source>
        <extracomment>The chat&apos;s subtitle while the other person types.</extracomment>
        <translation>در حال نوشتن…</translation>
    </message>
    <message>
        <source>%1 is typing…</source>
        <extracomment>A group&apos;s subtitle while a member types; %1 is the member&apos;s name.</extracomment>
        <translation>%1 در حال نوشتن است…</translation>
    </message>
    <message>
        <source>Someone</source>
        <translation>کسی</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>آنلاین</translation>
    </message>
</context>
<context>
    <name>VideoPlayer</name>
    <message>
        <source>GIF</source>
        <translation>گیف</translation>
    </message>
    <message>
        <source>Video, %1</source>
        <translation>ویدیو، %1</translation>
    </message>
</context>
<context>
    <name>VoicePlayer</name>
    <message>
        <source>Audio %1, %2</source>
        <translation>موسیقی %1، %2</translation>
    </message>
    <message>
        <source>Voice message, %1</source>
        <translation>پیام صوتی، %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Verbs: the voice message&apos;s play button.</extracomment>
        <translation>توقف</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>پخش</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The time played and the whole length, as in &quot;0:12 of 1:05&quot;.</extracomment>
        <translation>%1 از %2</translation>
    </message>
</context>
<context>
    <name>VostApp</name>
    <message>
        <source>A compact Telegram client for the system tray.</source>
        <translation>یک کلاینت جمع‌وجور تلگرام برای سینی سیستم.</translation>
    </message>
    <message>
        <source>Use the offline demo account.</source>
        <translation>استفاده از حساب نمایشی آفلاین.</translation>
    </message>
    <message>
        <source>Another Vost is still closing or not answering. Start Vost again in a moment.</source>
        <translation>یک Vost دیگر هنوز در حال بسته شدن است یا پاسخ نمی‌دهد. چند لحظهٔ دیگر Vost را دوباره اجرا کنید.</translation>
    </message>
    <message>
        <source>Open Vost</source>
        <translation>باز کردن Vost</translation>
    </message>
    <message>
        <source>Quit Vost</source>
        <translation>خروج از Vost</translation>
    </message>
</context>
</TS>

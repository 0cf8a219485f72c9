<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AppConfigurationErrorView</name>
    <message>
        <source>Vost needs to be reinstalled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This copy of Vost is missing its application configuration. Please install the latest complete release from the app’s distributor.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ArchiveHeader</name>
    <message numerus="yes">
        <source>Archived chats, %n unread</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Archived chats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to chats</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CallCard</name>
    <message>
        <source>Cancelled call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missed call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Declined call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outgoing call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A call read aloud: %1 what kind of call, %2 how long it lasted.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatLayout</name>
    <message>
        <source>Chats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the chat with %1 and remove them from your contacts?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the chat “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the chat.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatListView</name>
    <message>
        <source>Sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chat list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll chats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No chats yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatMenu</name>
    <message>
        <source>Chat actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete chat and contact</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatRow</name>
    <message>
        <source>Deleting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draft: %1</source>
        <extracomment>%1 is the start of the unsent text of the chat.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>secret chat</source>
        <extracomment>Read aloud after a chat&apos;s title, like the other states of a chat here.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>muted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>archived</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n unread</source>
        <extracomment>How many messages of the chat are unread.</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>marked unread</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Pasted image %1.png</source>
        <extracomment>The file name of a pasted image; %1 is a short random code.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Composer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach</source>
        <extracomment>A verb: the button that adds files.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll message text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A noun: the text being written.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>The send button while a message is edited: a verb.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComposerBanner</name>
    <message>
        <source>%1: %2</source>
        <extracomment>The banner above the composer read aloud: %1 its title, %2 the quoted message.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reply to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel reply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactCard</name>
    <message>
        <source>Contact %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to the person on the card.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactMenu</name>
    <message>
        <source>Contact actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to this contact.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>%1, online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>online</source>
        <extracomment>Said of a contact who is using Telegram right now.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactStore</name>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram took too long to respond. A submitted contact may already be saved. Check Contacts or try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a first name. First and last names can each contain up to 64 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a valid phone number including + and the country code (for example, +44 7700 900123).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a Telegram username, such as @username, using letters, numbers and underscores.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The contact was saved, but the chat could not be opened. Try opening it from Contacts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Telegram account could be found for that number. Check the country code or try their username; Telegram privacy settings can prevent phone-number lookup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram could not complete this action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chat was deleted, but the contact could not be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram contact</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContentTexts</name>
    <message>
        <source>📷 Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🎬 Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🎤 Voice message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>📎 Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🎵 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>📍 Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group or channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secret chat</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConversationView</name>
    <message>
        <source>Conversation with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading older messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start of the conversation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this message for everyone?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the message.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DateTexts</name>
    <message>
        <source>Yesterday</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiceCard</name>
    <message>
        <source>%1 rolled %2</source>
        <extracomment>%1 is the die&apos;s emoji (a die, a dart, a ball), %2 the number it came up with.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentCard</name>
    <message>
        <source>Document %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the file has come and its whole size, as in &quot;1.2 MB of 5 MB&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the file with its application.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the file to a folder.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DownloadRing</name>
    <message>
        <source>Downloading, %1 %</source>
        <extracomment>%1 is how much has come, in percent.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmojiPicker</name>
    <message>
        <source>Emoji picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Emoji sent lately.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No emoji found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmptyConversationView</name>
    <message>
        <source>Conversation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Telegram chat or contact.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorBanner</name>
    <message>
        <source>Dismiss</source>
        <extracomment>A verb: close the error message.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorTexts</name>
    <message>
        <source>That phone number isn’t valid. Enter it with + and the country code, for example +44 7700 900123.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This phone number is banned from Telegram.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This number has asked for too many codes. Try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This number has no Telegram account yet. Sign up in Telegram’s phone app first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That code isn’t right. Check it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the code Telegram sent you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That code has expired. Use a different number, or enter this one again for a new code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That password isn’t right. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter your two-step verification password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many attempts. Wait a while, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signing in has to start again. Enter your number once more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram refused this copy of Vost. Install the latest release.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody on Telegram has that username.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That isn’t a valid username. Usernames use letters, numbers and underscores.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a first name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That first name can’t be used. Try a shorter one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That last name can’t be used. Try a shorter one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Their privacy settings don’t allow this. Try their username instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That person can’t be added as a contact.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilePanel</name>
    <message>
        <source>Attach files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ForwardDialog</name>
    <message>
        <source>Forward to</source>
        <extracomment>The title of the list of chats a message can be forwarded to.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search chats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chats to forward to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll chats to forward to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No results</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationCard</name>
    <message>
        <source>Location %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open map</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoginPresenter</name>
    <message>
        <source>We’ve sent the code for %1 to the Telegram app on your other device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We’ve sent the code to %1 by SMS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram is calling %1 to tell you the code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram is calling %1: the last digits of the calling number are the code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code for %1 is waiting on fragment.com.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code for %1 was sent to Telegram on your phone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code was sent for %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoginTexts</name>
    <message>
        <source>Preparing Telegram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting the secure TDLib connection…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign in to Telegram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the telephone number associated with your Telegram account, including its international country code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telephone number, including country code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter your verification code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram sent a code to one of your existing Telegram sessions or by another supported method.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram verification code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-step verification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your account uses an additional password. Enter it to complete sign-in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-step verification password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram is unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The app could not start its Telegram connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <extracomment>The two-step password&apos;s hint, as its owner wrote it.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verification codes and passwords are sent directly to TDLib and are never saved by this app.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageBubble</name>
    <message>
        <source>sending</source>
        <extracomment>A message&apos;s delivery state, read aloud after its time; the next two as well.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Said of a message that was changed after it was sent.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2, yours</source>
        <extracomment>A reaction read aloud: %1 is its emoji, %2 how many reacted with it; you did too.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unread messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The button that opens a message&apos;s actions.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forwarded from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link preview: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edited  %1</source>
        <extracomment>An edited message&apos;s time; %1 is the time, such as 14:05.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageListModel</name>
    <message>
        <source>Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>Message actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>Verbs: the actions of the message menu, down to Delete.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewChatView</name>
    <message>
        <source>New chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found by Telegram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No contacts found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No contacts yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1 from your contacts?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewContactForms</name>
    <message>
        <source>Add contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A noun: a private note about the new contact.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open username</source>
        <extracomment>A form&apos;s title: open a chat by someone&apos;s public username.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: the button that opens the chat with that username.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening the chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewestButton</name>
    <message>
        <source>↓</source>
        <extracomment>An arrow glyph pointing down, to the newest message; not a word.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Go to newest message, %n new</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Go to newest message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PendingStrip</name>
    <message>
        <source>Files to send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll files to send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send as file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty and can’t be sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a folder; choose the files in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is larger than 2 GB, more than Telegram takes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can’t be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhotoAlbum</name>
    <message>
        <source>Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Album, %n photos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PhotoViewer</name>
    <message>
        <source>Photo viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous picture of the album.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next picture of the album.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the picture to a folder.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the picture with its application.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The picture shown and how many the album has, as in &quot;2 of 5&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PollCard</name>
    <message>
        <source>Quiz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anonymous poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <extracomment>A poll&apos;s answer read aloud: %1 is the answer, %2 the share of votes in percent.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n vote(s)</source>
        <extracomment>How many people voted in the poll.</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreferencesView</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>Titles of the preferences&apos; sections.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>The appearance that follows the system&apos;s light or dark setting.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound pack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crystal</source>
        <extracomment>Names of the sound packs.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Vost when I sign in to my computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change account</source>
        <extracomment>A verb: sign out and sign in to another account.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demo account: nothing leaves this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vost %1</source>
        <extracomment>%1 is the version, such as 0.1.0.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign out of this account and sign in to another?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language that follows the system&apos;s own.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReplyQuote</name>
    <message>
        <source>You</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reply to %1: %2</source>
        <extracomment>A quoted message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SidebarToolbar</name>
    <message>
        <source>New chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New chat (Ctrl+N)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences (Ctrl+,)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message numerus="yes">
        <source>Vost, %n unread messages</source>
        <extracomment>The tray icon&apos;s accessible name.</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StickerPicker</name>
    <message>
        <source>Sticker picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Tabs of the sticker picker: stickers sent lately, then installed, then popular ones.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search stickers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll stickers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No stickers found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No stickers here yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading stickers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StickerStore</name>
    <message>
        <source>Unable to load stickers.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StickerView</name>
    <message>
        <source>Sticker %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TDLibRuntime</name>
    <message>
        <source>TDLib is not bundled in this build.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TDLib could not be loaded: %1</source>
        <extracomment>%1 is the system loader&apos;s own message.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TDLib is missing the required function %1.</source>
        <extracomment>%1 is the name of a function of TDLib&apos;s library, such as td_create_client_id.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TelegramLoginView</name>
    <message>
        <source>Sign in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login Information</source>
        <extracomment>The group of fields where the sign-in details are typed.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use a different number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TelegramSession</name>
    <message>
        <source>Loading the bundled TDLib library…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TDLib loaded; creating a client…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client created; waiting for TDLib’s first event…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Telegram session is closing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Telegram session closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to refresh chats.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>The sender&apos;s name on one&apos;s own messages.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Telegram message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting to start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TDLib returned an unreadable response.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received TDLib event: %1</source>
        <extracomment>%1 is the name of TDLib&apos;s event, such as updateOption.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TranscriptPlaceholder</name>
    <message>
        <source>No messages here yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading messages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserStore</name>
    <message>
        <source>Telegram user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typing…</source>
        <extracomment>The chat&apos;s subtitle while the other person types.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is typing…</source>
        <extracomment>A group&apos;s subtitle while a member types; %1 is the member&apos;s name.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Someone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VideoPlayer</name>
    <message>
        <source>GIF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video, %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoicePlayer</name>
    <message>
        <source>Audio %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice message, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Verbs: the voice message&apos;s play button.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The time played and the whole length, as in &quot;0:12 of 1:05&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VostApp</name>
    <message>
        <source>A compact Telegram client for the system tray.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the offline demo account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another Vost is still closing or not answering. Start Vost again in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Vost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Vost</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Announcer</name>
    <message>
        <source>New Telegram message</source>
        <translation>Neue Telegram-Nachricht</translation>
    </message>
</context>
<context>
    <name>AppConfigurationErrorView</name>
    <message>
        <source>Vost needs to be reinstalled</source>
        <translation>Vost muss neu installiert werden</translation>
    </message>
    <message>
        <source>This copy of Vost is missing its application configuration. Please install the latest complete release from the app’s distributor.</source>
        <translation>Dieser Installation von Vost fehlt die Anwendungskonfiguration. Bitte installiere die neueste vollständige Version aus der Bezugsquelle der App.</translation>
    </message>
</context>
<context>
    <name>ArchiveHeader</name>
    <message numerus="yes">
        <source>Archived chats, %n unread</source>
        <translation>
            <numerusform>Archivierte Chats, %n ungelesen</numerusform>
            <numerusform>Archivierte Chats, %n ungelesen</numerusform>
        </translation>
    </message>
    <message>
        <source>Archived chats</source>
        <translation>Archivierte Chats</translation>
    </message>
    <message>
        <source>Back to chats</source>
        <translation>Zurück zu den Chats</translation>
    </message>
</context>
<context>
    <name>AuthorizationStore</name>
    <message>
        <source>Waiting to start</source>
        <translation>Warten auf den Start</translation>
    </message>
    <message>
        <source>Received TDLib event: %1</source>
        <extracomment>%1 is the name of TDLib&apos;s event, such as updateOption.</extracomment>
        <translation>TDLib-Ereignis empfangen: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>The Telegram session is closing.</source>
        <translation>Die Telegram-Sitzung wird beendet.</translation>
    </message>
    <message>
        <source>The Telegram session closed.</source>
        <translation>Die Telegram-Sitzung wurde beendet.</translation>
    </message>
</context>
<context>
    <name>CallCard</name>
    <message>
        <source>Cancelled call</source>
        <translation>Abgebrochener Anruf</translation>
    </message>
    <message>
        <source>Missed call</source>
        <translation>Verpasster Anruf</translation>
    </message>
    <message>
        <source>Declined call</source>
        <translation>Abgelehnter Anruf</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <translation>Ausgehender Videoanruf</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <translation>Eingehender Videoanruf</translation>
    </message>
    <message>
        <source>Outgoing call</source>
        <translation>Ausgehender Anruf</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Eingehender Anruf</translation>
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
        <translation>Chats</translation>
    </message>
    <message>
        <source>Delete the chat with %1 and remove them from your contacts?</source>
        <translation>Chat mit %1 löschen und aus den Kontakten entfernen?</translation>
    </message>
    <message>
        <source>Delete the chat “%1”?</source>
        <translation>Chat „%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the chat.</extracomment>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>ChatListView</name>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Chat list</source>
        <translation>Chatliste</translation>
    </message>
    <message>
        <source>Scroll chats</source>
        <translation>Chats scrollen</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Keine Ergebnisse</translation>
    </message>
    <message>
        <source>No chats yet</source>
        <translation>Noch keine Chats</translation>
    </message>
</context>
<context>
    <name>ChatMenu</name>
    <message>
        <source>Chat actions</source>
        <translation>Chat-Aktionen</translation>
    </message>
    <message>
        <source>Delete chat</source>
        <translation>Chat löschen</translation>
    </message>
    <message>
        <source>Delete chat and contact</source>
        <translation>Chat und Kontakt löschen</translation>
    </message>
</context>
<context>
    <name>ChatRow</name>
    <message>
        <source>Deleting…</source>
        <translation>Wird gelöscht…</translation>
    </message>
    <message>
        <source>Draft: %1</source>
        <extracomment>%1 is the start of the unsent text of the chat.</extracomment>
        <translation>Entwurf: %1</translation>
    </message>
    <message>
        <source>secret chat</source>
        <extracomment>Read aloud after a chat&apos;s title, like the other states of a chat here.</extracomment>
        <translation>geheimer Chat</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>angeheftet</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>stummgeschaltet</translation>
    </message>
    <message>
        <source>archived</source>
        <translation>archiviert</translation>
    </message>
    <message numerus="yes">
        <source>%n unread</source>
        <extracomment>How many messages of the chat are unread.</extracomment>
        <translation>
            <numerusform>%n ungelesene Nachricht</numerusform>
            <numerusform>%n ungelesene Nachrichten</numerusform>
        </translation>
    </message>
    <message>
        <source>marked unread</source>
        <translation>als ungelesen markiert</translation>
    </message>
</context>
<context>
    <name>ChatSearchBar</name>
    <message>
        <source>Search in chat</source>
        <translation>Im Chat suchen</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche…</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Keine Ergebnisse</translation>
    </message>
    <message>
        <source>Search failed</source>
        <translation>Suche fehlgeschlagen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n</source>
        <extracomment>Which search result shows, of how many: &quot;3 of 12&quot;.</extracomment>
        <translation>
            <numerusform>%1 von %n</numerusform>
            <numerusform>%1 von %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Older result</source>
        <translation>Älteres Ergebnis</translation>
    </message>
    <message>
        <source>Newer result</source>
        <translation>Neueres Ergebnis</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>Suche schließen</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Pasted image %1.png</source>
        <extracomment>The file name of a pasted image; %1 is a short random code.</extracomment>
        <translation>Eingefügtes Bild %1.png</translation>
    </message>
</context>
<context>
    <name>CodeBlock</name>
    <message>
        <source>Copy</source>
        <extracomment>A button on a block of code in a message: copies the code.</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the %1 code</source>
        <translation>Kopiert den %1-Code</translation>
    </message>
    <message>
        <source>Copies the code</source>
        <translation>Kopiert den Code</translation>
    </message>
    <message>
        <source>%1 code: %2</source>
        <extracomment>How screen readers name a block of code in a message; %1 is the code.</extracomment>
        <translation>%1-Code: %2</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Code: %1</translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Composer</source>
        <translation>Eingabebereich</translation>
    </message>
    <message>
        <source>Attach</source>
        <extracomment>A verb: the button that adds files.</extracomment>
        <translation>Anhängen</translation>
    </message>
    <message>
        <source>Scroll message text</source>
        <translation>Nachrichtentext scrollen</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A noun: the text being written.</extracomment>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>The send button while a message is edited: a verb.</extracomment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
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
        <translation>Nachricht bearbeiten</translation>
    </message>
    <message>
        <source>Reply to %1</source>
        <translation>Antwort an %1</translation>
    </message>
    <message>
        <source>Cancel editing</source>
        <translation>Bearbeiten abbrechen</translation>
    </message>
    <message>
        <source>Cancel reply</source>
        <translation>Antwort abbrechen</translation>
    </message>
</context>
<context>
    <name>ComposerMenu</name>
    <message>
        <source>Spelling</source>
        <translation>Rechtschreibung</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>The composer&apos;s context menu without a misspelt word: the editing commands.</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <extracomment>Keeps a word the spelling check does not know from being marked again.</extracomment>
        <translation>Zum Wörterbuch hinzufügen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ConnectionStatus</name>
    <message>
        <source>Waiting for network…</source>
        <extracomment>Above the chat list while the computer has no network connection</extracomment>
        <translation>Warte auf Netzwerk…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>Above the chat list while the link to Telegram is being made</extracomment>
        <translation>Verbinde…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>Above the chat list while what happened offline is being fetched</extracomment>
        <translation>Aktualisiere…</translation>
    </message>
</context>
<context>
    <name>ContactCard</name>
    <message>
        <source>Contact %1, %2</source>
        <translation>Kontakt %1, %2</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to the person on the card.</extracomment>
        <translation>Nachricht senden</translation>
    </message>
</context>
<context>
    <name>ContactMenu</name>
    <message>
        <source>Contact actions</source>
        <translation>Kontakt-Aktionen</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to this contact.</extracomment>
        <translation>Nachricht senden</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Kontakt löschen</translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>%1, online</source>
        <translation>%1, online</translation>
    </message>
    <message>
        <source>online</source>
        <extracomment>Said of a contact who is using Telegram right now.</extracomment>
        <translation>online</translation>
    </message>
</context>
<context>
    <name>ContactStore</name>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>Telegram hat einen unbekannten Fehler gemeldet.</translation>
    </message>
    <message>
        <source>Telegram took too long to respond. A submitted contact may already be saved. Check Contacts or try again.</source>
        <translation>Telegram hat zu lange nicht geantwortet. Ein übermittelter Kontakt wurde möglicherweise bereits gespeichert. Prüfe die Kontakte oder versuche es erneut.</translation>
    </message>
    <message>
        <source>Enter a first name. First and last names can each contain up to 64 characters.</source>
        <translation>Gib einen Vornamen ein. Vor- und Nachname dürfen jeweils bis zu 64 Zeichen lang sein.</translation>
    </message>
    <message>
        <source>Enter a valid phone number including + and the country code (for example, +44 7700 900123).</source>
        <translation>Gib eine gültige Telefonnummer mit + und Ländervorwahl ein (zum Beispiel +44 7700 900123).</translation>
    </message>
    <message>
        <source>Enter a Telegram username, such as @username, using letters, numbers and underscores.</source>
        <translation>Gib einen Telegram-Benutzernamen wie @username ein – erlaubt sind Buchstaben, Ziffern und Unterstriche.</translation>
    </message>
    <message>
        <source>The contact was saved, but the chat could not be opened. Try opening it from Contacts.</source>
        <translation>Der Kontakt wurde gespeichert, aber der Chat konnte nicht geöffnet werden. Versuche, ihn über die Kontakte zu öffnen.</translation>
    </message>
    <message>
        <source>No Telegram account could be found for that number. Check the country code or try their username; Telegram privacy settings can prevent phone-number lookup.</source>
        <translation>Zu dieser Nummer wurde kein Telegram-Konto gefunden. Prüfe die Ländervorwahl oder versuche es mit dem Benutzernamen; die Privatsphäre-Einstellungen von Telegram können die Suche nach Telefonnummern verhindern.</translation>
    </message>
    <message>
        <source>Telegram could not complete this action.</source>
        <translation>Telegram konnte diese Aktion nicht abschließen.</translation>
    </message>
    <message>
        <source>The chat was deleted, but the contact could not be removed.</source>
        <translation>Der Chat wurde gelöscht, aber der Kontakt konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Telegram contact</source>
        <translation>Telegram-Kontakt</translation>
    </message>
</context>
<context>
    <name>ContentTexts</name>
    <message>
        <source>📷 Photo</source>
        <translation>📷 Foto</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>🎬 Video</source>
        <translation>🎬 Video</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>🎤 Voice message</source>
        <translation>🎤 Sprachnachricht</translation>
    </message>
    <message>
        <source>Voice message</source>
        <translation>Sprachnachricht</translation>
    </message>
    <message>
        <source>Video message</source>
        <translation>Videonachricht</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>📎 Document</source>
        <translation>📎 Datei</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>🎵 Audio</source>
        <translation>🎵 Audio</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
    <message>
        <source>📍 Location</source>
        <translation>📍 Standort</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Umfrage</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Unsupported message</source>
        <translation>Nicht unterstützte Nachricht</translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation>Noch keine Nachrichten</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Privater Chat</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Group or channel</source>
        <translation>Gruppe oder Kanal</translation>
    </message>
    <message>
        <source>Secret chat</source>
        <translation>Geheimer Chat</translation>
    </message>
</context>
<context>
    <name>ConversationView</name>
    <message>
        <source>Conversation with %1</source>
        <translation>Chat mit %1</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Scroll messages</source>
        <translation>Nachrichten scrollen</translation>
    </message>
    <message>
        <source>Loading older messages</source>
        <translation>Ältere Nachrichten werden geladen</translation>
    </message>
    <message>
        <source>Start of the conversation</source>
        <translation>Beginn des Chats</translation>
    </message>
    <message>
        <source>Delete this message for everyone?</source>
        <translation>Diese Nachricht für alle löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the message.</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Search in chat</source>
        <translation>Im Chat suchen</translation>
    </message>
</context>
<context>
    <name>DateTexts</name>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
</context>
<context>
    <name>DiceCard</name>
    <message>
        <source>%1 rolled %2</source>
        <extracomment>%1 is the die&apos;s emoji (a die, a dart, a ball), %2 the number it came up with.</extracomment>
        <translation>%1, Ergebnis: %2</translation>
    </message>
</context>
<context>
    <name>DocumentCard</name>
    <message>
        <source>Document %1, %2</source>
        <translation>Datei %1, %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the file has come and its whole size, as in &quot;1.2 MB of 5 MB&quot;.</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the file with its application.</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the file to a folder.</extracomment>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>DownloadRing</name>
    <message>
        <source>Downloading, %1 %</source>
        <extracomment>%1 is how much has come, in percent.</extracomment>
        <translation>Wird heruntergeladen, %1 %</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Wird heruntergeladen</translation>
    </message>
</context>
<context>
    <name>EmojiPicker</name>
    <message>
        <source>Emoji picker</source>
        <translation>Emoji-Auswahl</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Emoji sent lately.</extracomment>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Smileys &amp; Emotionen</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Menschen &amp; Körper</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Tiere &amp; Natur</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Essen &amp; Trinken</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Reisen &amp; Orte</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Flaggen</translation>
    </message>
    <message>
        <source>Search emoji</source>
        <translation>Emoji suchen</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Scroll emoji</source>
        <translation>Emoji scrollen</translation>
    </message>
    <message>
        <source>No emoji found</source>
        <translation>Keine Emoji gefunden</translation>
    </message>
</context>
<context>
    <name>EmptyConversationView</name>
    <message>
        <source>Conversation</source>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Choose a Telegram chat or contact.</source>
        <translation>Wähle einen Telegram-Chat oder -Kontakt.</translation>
    </message>
</context>
<context>
    <name>ErrorBanner</name>
    <message>
        <source>Dismiss</source>
        <extracomment>A verb: close the error message.</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ErrorTexts</name>
    <message>
        <source>That phone number isn’t valid. Enter it with + and the country code, for example +44 7700 900123.</source>
        <translation>Diese Telefonnummer ist ungültig. Gib sie mit + und Ländervorwahl ein, zum Beispiel +44 7700 900123.</translation>
    </message>
    <message>
        <source>This phone number is banned from Telegram.</source>
        <translation>Diese Telefonnummer ist bei Telegram gesperrt.</translation>
    </message>
    <message>
        <source>This number has asked for too many codes. Try again later.</source>
        <translation>Für diese Nummer wurden zu viele Codes angefordert. Versuche es später erneut.</translation>
    </message>
    <message>
        <source>This number has no Telegram account yet. Sign up in Telegram’s phone app first.</source>
        <translation>Zu dieser Nummer gibt es noch kein Telegram-Konto. Registriere dich zuerst in der Telegram-App auf dem Smartphone.</translation>
    </message>
    <message>
        <source>That code isn’t right. Check it and try again.</source>
        <translation>Der Code ist falsch. Prüfe ihn und versuche es erneut.</translation>
    </message>
    <message>
        <source>Enter the code Telegram sent you.</source>
        <translation>Gib den Code ein, den Telegram dir geschickt hat.</translation>
    </message>
    <message>
        <source>That code has expired. Use a different number, or enter this one again for a new code.</source>
        <translation>Der Code ist abgelaufen. Verwende eine andere Nummer oder gib diese erneut ein, um einen neuen Code zu erhalten.</translation>
    </message>
    <message>
        <source>That password isn’t right. Try again.</source>
        <translation>Das Passwort ist falsch. Versuche es erneut.</translation>
    </message>
    <message>
        <source>Enter your two-step verification password.</source>
        <translation>Gib dein Passwort für die zweistufige Bestätigung ein.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a while, then try again.</source>
        <translation>Zu viele Versuche. Warte eine Weile und versuche es dann erneut.</translation>
    </message>
    <message>
        <source>Signing in has to start again. Enter your number once more.</source>
        <translation>Die Anmeldung muss neu beginnen. Gib deine Nummer noch einmal ein.</translation>
    </message>
    <message>
        <source>Telegram refused this copy of Vost. Install the latest release.</source>
        <translation>Telegram hat diese Installation von Vost abgelehnt. Installiere die neueste Version.</translation>
    </message>
    <message>
        <source>Nobody on Telegram has that username.</source>
        <translation>Diesen Benutzernamen hat niemand auf Telegram.</translation>
    </message>
    <message>
        <source>That isn’t a valid username. Usernames use letters, numbers and underscores.</source>
        <translation>Das ist kein gültiger Benutzername. Benutzernamen bestehen aus Buchstaben, Ziffern und Unterstrichen.</translation>
    </message>
    <message>
        <source>Enter a first name.</source>
        <translation>Gib einen Vornamen ein.</translation>
    </message>
    <message>
        <source>That first name can’t be used. Try a shorter one.</source>
        <translation>Dieser Vorname kann nicht verwendet werden. Versuche es mit einem kürzeren.</translation>
    </message>
    <message>
        <source>That last name can’t be used. Try a shorter one.</source>
        <translation>Dieser Nachname kann nicht verwendet werden. Versuche es mit einem kürzeren.</translation>
    </message>
    <message>
        <source>Their privacy settings don’t allow this. Try their username instead.</source>
        <translation>Die Privatsphäre-Einstellungen dieser Person lassen das nicht zu. Versuche es stattdessen mit dem Benutzernamen.</translation>
    </message>
    <message>
        <source>That person can’t be added as a contact.</source>
        <translation>Diese Person kann nicht als Kontakt hinzugefügt werden.</translation>
    </message>
</context>
<context>
    <name>FilePanel</name>
    <message>
        <source>Attach files</source>
        <translation>Dateien anhängen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
</context>
<context>
    <name>FormattedBody</name>
    <message>
        <source>Links to %1</source>
        <extracomment>The addresses behind the links of a message&apos;s text, for screen readers.</extracomment>
        <translation>Verweist auf %1</translation>
    </message>
    <message>
        <source>Quotation</source>
        <extracomment>Said by screen readers of a quoted paragraph in a message.</extracomment>
        <translation>Zitat</translation>
    </message>
</context>
<context>
    <name>ForwardDialog</name>
    <message>
        <source>Forward to</source>
        <extracomment>The title of the list of chats a message can be forwarded to.</extracomment>
        <translation>Weiterleiten an</translation>
    </message>
    <message>
        <source>Search chats</source>
        <translation>Chats durchsuchen</translation>
    </message>
    <message>
        <source>Chats to forward to</source>
        <translation>Chats zum Weiterleiten</translation>
    </message>
    <message>
        <source>Scroll chats to forward to</source>
        <translation>Chats zum Weiterleiten scrollen</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Keine Ergebnisse</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotificationPoster</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>A notification&apos;s action that answers its message.</extracomment>
        <translation>Antworten</translation>
    </message>
    <message>
        <source>Reply…</source>
        <translation>Antworten…</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Als gelesen markieren</translation>
    </message>
</context>
<context>
    <name>GlobalShortcut</name>
    <message>
        <source>Open or close Vost</source>
        <translation>Vost öffnen oder schließen</translation>
    </message>
</context>
<context>
    <name>LanguageChoice</name>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language that follows the system&apos;s own.</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>LocationCard</name>
    <message>
        <source>Location %1</source>
        <translation>Standort %1</translation>
    </message>
    <message>
        <source>Open map</source>
        <translation>Karte öffnen</translation>
    </message>
</context>
<context>
    <name>LoginPresenter</name>
    <message>
        <source>We’ve sent the code for %1 to the Telegram app on your other device.</source>
        <translation>Wir haben den Code für %1 an die Telegram-App auf deinem anderen Gerät gesendet.</translation>
    </message>
    <message>
        <source>We’ve sent the code to %1 by SMS.</source>
        <translation>Wir haben den Code per SMS an %1 gesendet.</translation>
    </message>
    <message>
        <source>Telegram is calling %1 to tell you the code.</source>
        <translation>Telegram ruft %1 an, um dir den Code mitzuteilen.</translation>
    </message>
    <message>
        <source>Telegram is calling %1: the last digits of the calling number are the code.</source>
        <translation>Telegram ruft %1 an: Die letzten Ziffern der anrufenden Nummer sind der Code.</translation>
    </message>
    <message>
        <source>The code for %1 is waiting on fragment.com.</source>
        <translation>Der Code für %1 liegt auf fragment.com bereit.</translation>
    </message>
    <message>
        <source>The code for %1 was sent to Telegram on your phone.</source>
        <translation>Der Code für %1 wurde an Telegram auf deinem Smartphone gesendet.</translation>
    </message>
    <message>
        <source>The code was sent for %1.</source>
        <translation>Der Code für %1 wurde gesendet.</translation>
    </message>
</context>
<context>
    <name>LoginTexts</name>
    <message>
        <source>Preparing Telegram</source>
        <translation>Telegram wird vorbereitet</translation>
    </message>
    <message>
        <source>Starting the secure TDLib connection…</source>
        <translation>Sichere TDLib-Verbindung wird aufgebaut…</translation>
    </message>
    <message>
        <source>Sign in to Telegram</source>
        <translation>Bei Telegram anmelden</translation>
    </message>
    <message>
        <source>Enter the telephone number associated with your Telegram account, including its international country code.</source>
        <translation>Gib die Telefonnummer deines Telegram-Kontos mit internationaler Ländervorwahl ein.</translation>
    </message>
    <message>
        <source>Telephone number, including country code</source>
        <translation>Telefonnummer mit Ländervorwahl</translation>
    </message>
    <message>
        <source>Enter your verification code</source>
        <translation>Bestätigungscode eingeben</translation>
    </message>
    <message>
        <source>Telegram sent a code to one of your existing Telegram sessions or by another supported method.</source>
        <translation>Telegram hat einen Code an eine deiner bestehenden Telegram-Sitzungen oder auf einem anderen unterstützten Weg gesendet.</translation>
    </message>
    <message>
        <source>Telegram verification code</source>
        <translation>Telegram-Bestätigungscode</translation>
    </message>
    <message>
        <source>Two-step verification</source>
        <translation>Zweistufige Bestätigung</translation>
    </message>
    <message>
        <source>Your account uses an additional password. Enter it to complete sign-in.</source>
        <translation>Dein Konto ist mit einem zusätzlichen Passwort geschützt. Gib es ein, um die Anmeldung abzuschließen.</translation>
    </message>
    <message>
        <source>Two-step verification password</source>
        <translation>Passwort für die zweistufige Bestätigung</translation>
    </message>
    <message>
        <source>Telegram is unavailable</source>
        <translation>Telegram ist nicht verfügbar</translation>
    </message>
    <message>
        <source>The app could not start its Telegram connection.</source>
        <translation>Die App konnte keine Verbindung zu Telegram herstellen.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <extracomment>The two-step password&apos;s hint, as its owner wrote it.</extracomment>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>Verification codes and passwords are sent directly to TDLib and are never saved by this app.</source>
        <translation>Bestätigungscodes und Passwörter werden direkt an TDLib übergeben und von dieser App nie gespeichert.</translation>
    </message>
</context>
<context>
    <name>MessageBubble</name>
    <message>
        <source>sending</source>
        <extracomment>A message&apos;s delivery state, read aloud after its time; the next two as well.</extracomment>
        <translation>wird gesendet</translation>
    </message>
    <message>
        <source>read</source>
        <translation>gelesen</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>gesendet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Said of a message that was changed after it was sent.</extracomment>
        <translation>bearbeitet</translation>
    </message>
    <message>
        <source>%1 %2, yours</source>
        <extracomment>A reaction read aloud: %1 is its emoji, %2 how many reacted with it; you did too.</extracomment>
        <translation>%1 %2, auch von dir</translation>
    </message>
    <message>
        <source>Unread messages</source>
        <translation>Ungelesene Nachrichten</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The button that opens a message&apos;s actions.</extracomment>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Forwarded from %1</source>
        <translation>Weitergeleitet von %1</translation>
    </message>
    <message>
        <source>Link preview: %1</source>
        <translation>Linkvorschau: %1</translation>
    </message>
    <message>
        <source>edited  %1</source>
        <extracomment>An edited message&apos;s time; %1 is the time, such as 14:05.</extracomment>
        <translation>bearbeitet  %1</translation>
    </message>
</context>
<context>
    <name>MessageListModel</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>Message actions</source>
        <translation>Nachrichten-Aktionen</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>Reaktionen</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>Verbs: the actions of the message menu, down to Delete.</extracomment>
        <translation>Antworten</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Weiterleiten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>hidden text</source>
        <extracomment>Read by screen readers in place of a spoiler, a part of a message hidden until clicked.</extracomment>
        <translation>versteckter Text</translation>
    </message>
</context>
<context>
    <name>NewChatView</name>
    <message>
        <source>New chat</source>
        <translation>Neuer Chat</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Kontakte durchsuchen</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Scroll contacts</source>
        <translation>Kontakte scrollen</translation>
    </message>
    <message>
        <source>Found by Telegram</source>
        <translation>Auf Telegram gefunden</translation>
    </message>
    <message>
        <source>No contacts found</source>
        <translation>Keine Kontakte gefunden</translation>
    </message>
    <message>
        <source>No contacts yet</source>
        <translation>Noch keine Kontakte</translation>
    </message>
    <message>
        <source>Remove %1 from your contacts?</source>
        <translation>%1 aus den Kontakten entfernen?</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Kontakt löschen</translation>
    </message>
</context>
<context>
    <name>NewContactForms</name>
    <message>
        <source>Add contact</source>
        <translation>Kontakt hinzufügen</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Telefonnummer</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A noun: a private note about the new contact.</extracomment>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Open username</source>
        <extracomment>A form&apos;s title: open a chat by someone&apos;s public username.</extracomment>
        <translation>Per Benutzername öffnen</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: the button that opens the chat with that username.</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Opening the chat</source>
        <translation>Chat wird geöffnet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Zur neuesten Nachricht</translation>
    </message>
    <message numerus="yes">
        <source>↓ %n new</source>
        <extracomment>On the button under the transcript: how many messages arrived below, with an arrow pointing down to them.</extracomment>
        <translation>
            <numerusform>↓ %n neue</numerusform>
            <numerusform>↓ %n neue</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <extracomment>The same button read aloud: how many messages arrived below.</extracomment>
        <translation>
            <numerusform>%n neue Nachricht</numerusform>
            <numerusform>%n neue Nachrichten</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the first new message</source>
        <translation>Zur ersten neuen Nachricht</translation>
    </message>
</context>
<context>
    <name>PendingStrip</name>
    <message>
        <source>Files to send</source>
        <translation>Zu sendende Dateien</translation>
    </message>
    <message>
        <source>Scroll files to send</source>
        <translation>Zu sendende Dateien scrollen</translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation>Foto %1</translation>
    </message>
    <message>
        <source>Document %1, %2</source>
        <translation>Datei %1, %2</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Send as file</source>
        <translation>Als Datei senden</translation>
    </message>
    <message>
        <source>%1 is empty and can’t be sent.</source>
        <translation>%1 ist leer und kann nicht gesendet werden.</translation>
    </message>
    <message>
        <source>%1 is a folder; choose the files in it.</source>
        <translation>%1 ist ein Ordner – wähle die Dateien darin aus.</translation>
    </message>
    <message>
        <source>%1 is larger than 2 GB, more than Telegram takes.</source>
        <translation>%1 ist größer als 2 GB und übersteigt damit das Limit von Telegram.</translation>
    </message>
    <message>
        <source>%1 can’t be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>PhotoAlbum</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message numerus="yes">
        <source>Album, %n photos</source>
        <translation>
            <numerusform>Album, %n Foto</numerusform>
            <numerusform>Album, %n Fotos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PhotoViewer</name>
    <message>
        <source>Photo viewer</source>
        <translation>Bildbetrachter</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>Foto %1 von %2</translation>
    </message>
    <message>
        <source>Video %1 of %2</source>
        <translation>Video %1 von %2</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous picture of the album.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next picture of the album.</extracomment>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the picture to a folder.</extracomment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the picture with its application.</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The picture shown and how many the album has, as in &quot;2 of 5&quot;.</extracomment>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>PollCard</name>
    <message>
        <source>Quiz</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Anonymous poll</source>
        <translation>Anonyme Umfrage</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Umfrage</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1, beendet</translation>
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
            <numerusform>%n Stimme</numerusform>
            <numerusform>%n Stimmen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreferencesView</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Scroll preferences</source>
        <translation>Einstellungen scrollen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>Titles of the preferences&apos; sections.</extracomment>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>The appearance that follows the system&apos;s light or dark setting.</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Töne</translation>
    </message>
    <message>
        <source>Play sounds</source>
        <translation>Töne abspielen</translation>
    </message>
    <message>
        <source>Sound pack</source>
        <translation>Tonpaket</translation>
    </message>
    <message>
        <source>Crystal</source>
        <extracomment>Names of the sound packs.</extracomment>
        <translation>Kristall</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Playful</source>
        <translation>Verspielt</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Benachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>Start Vost when I sign in to my computer</source>
        <translation>Vost bei der Anmeldung am Computer starten</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Change account</source>
        <extracomment>A verb: sign out and sign in to another account.</extracomment>
        <translation>Konto wechseln</translation>
    </message>
    <message>
        <source>Demo account: nothing leaves this computer</source>
        <translation>Demo-Konto: Keine Daten verlassen diesen Computer</translation>
    </message>
    <message>
        <source>Vost %1</source>
        <extracomment>%1 is the version, such as 0.1.0.</extracomment>
        <translation>Vost %1</translation>
    </message>
    <message>
        <source>Sign out of this account and sign in to another?</source>
        <translation>Von diesem Konto abmelden und mit einem anderen anmelden?</translation>
    </message>
    <message>
        <source>Check spelling</source>
        <extracomment>Whether the composer underlines misspelt words.</extracomment>
        <translation>Rechtschreibung prüfen</translation>
    </message>
</context>
<context>
    <name>ReplyQuote</name>
    <message>
        <source>You</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Message not found</source>
        <translation>Nachricht nicht gefunden</translation>
    </message>
    <message>
        <source>Reply to %1: %2</source>
        <extracomment>A quoted message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>Antwort an %1: %2</translation>
    </message>
    <message>
        <source>a message</source>
        <translation>eine Nachricht</translation>
    </message>
</context>
<context>
    <name>ShortcutChoice</name>
    <message>
        <source>Press keys…</source>
        <extracomment>Shown on the shortcut&apos;s button while it waits for a key combination.</extracomment>
        <translation>Tasten drücken…</translation>
    </message>
    <message>
        <source>None</source>
        <comment>shortcut</comment>
        <extracomment>On the shortcut&apos;s button when no shortcut is chosen.</extracomment>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Shortcut to open Vost</source>
        <translation>Tastenkürzel zum Öffnen von Vost</translation>
    </message>
    <message>
        <source>Taken by another program</source>
        <translation>Von einem anderen Programm belegt</translation>
    </message>
    <message>
        <source>Not available on this desktop</source>
        <translation>Auf diesem Desktop nicht verfügbar</translation>
    </message>
    <message>
        <source>Not allowed by the desktop</source>
        <extracomment>The desktop was asked for the shortcut and did not give it.</extracomment>
        <translation>Vom Desktop nicht erlaubt</translation>
    </message>
</context>
<context>
    <name>SidebarToolbar</name>
    <message>
        <source>New chat</source>
        <translation>Neuer Chat</translation>
    </message>
    <message>
        <source>New chat (Ctrl+N)</source>
        <translation>Neuer Chat (Strg+N)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preferences (Ctrl+,)</source>
        <translation>Einstellungen (Strg+,)</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message numerus="yes">
        <source>Vost, %n unread messages</source>
        <extracomment>The tray icon&apos;s accessible name.</extracomment>
        <translation>
            <numerusform>Vost, %n ungelesene Nachricht</numerusform>
            <numerusform>Vost, %n ungelesene Nachrichten</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for network…</source>
        <extracomment>The tray item&apos;s tool tip while the computer has no network connection</extracomment>
        <translation>Warte auf Netzwerk…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>The tray item&apos;s tool tip while the link to Telegram is being made</extracomment>
        <translation>Verbinde…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>The tray item&apos;s tool tip while what happened offline is being fetched</extracomment>
        <translation>Aktualisiere…</translation>
    </message>
</context>
<context>
    <name>StickerPicker</name>
    <message>
        <source>Sticker picker</source>
        <translation>Sticker-Auswahl</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Tabs of the sticker picker: stickers sent lately, then installed, then popular ones.</extracomment>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Angesagt</translation>
    </message>
    <message>
        <source>Search stickers</source>
        <translation>Sticker suchen</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Scroll stickers</source>
        <translation>Sticker scrollen</translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation>Sticker %1</translation>
    </message>
    <message>
        <source>No stickers found</source>
        <translation>Keine Sticker gefunden</translation>
    </message>
    <message>
        <source>No stickers here yet</source>
        <translation>Hier gibt es noch keine Sticker</translation>
    </message>
    <message>
        <source>Loading stickers</source>
        <translation>Sticker werden geladen</translation>
    </message>
</context>
<context>
    <name>StickerStore</name>
    <message>
        <source>Unable to load stickers.</source>
        <translation>Sticker konnten nicht geladen werden.</translation>
    </message>
</context>
<context>
    <name>StickerView</name>
    <message>
        <source>Sticker %1</source>
        <translation>Sticker %1</translation>
    </message>
</context>
<context>
    <name>TDLibRuntime</name>
    <message>
        <source>TDLib is not bundled in this build.</source>
        <translation>TDLib ist in diesem Build nicht enthalten.</translation>
    </message>
    <message>
        <source>TDLib could not be loaded: %1</source>
        <extracomment>%1 is the system loader&apos;s own message.</extracomment>
        <translation>TDLib konnte nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>TDLib is missing the required function %1.</source>
        <extracomment>%1 is the name of a function of TDLib&apos;s library, such as td_create_client_id.</extracomment>
        <translation>In TDLib fehlt die benötigte Funktion %1.</translation>
    </message>
</context>
<context>
    <name>TelegramLoginView</name>
    <message>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Login Information</source>
        <extracomment>The group of fields where the sign-in details are typed.</extracomment>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Use a different number</source>
        <translation>Andere Nummer verwenden</translation>
    </message>
</context>
<context>
    <name>TelegramSession</name>
    <message>
        <source>Loading the bundled TDLib library…</source>
        <translation>Mitgelieferte TDLib-Bibliothek wird geladen…</translation>
    </message>
    <message>
        <source>TDLib loaded; creating a client…</source>
        <translation>TDLib geladen; Client wird erstellt…</translation>
    </message>
    <message>
        <source>Client created; waiting for TDLib’s first event…</source>
        <translation>Client erstellt; Warten auf das erste Ereignis von TDLib…</translation>
    </message>
    <message>
        <source>Unable to refresh chats.</source>
        <translation>Chats konnten nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>Telegram hat einen unbekannten Fehler gemeldet.</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>The sender&apos;s name on one&apos;s own messages.</extracomment>
        <translation>Du</translation>
    </message>
    <message>
        <source>TDLib returned an unreadable response.</source>
        <translation>TDLib hat eine unlesbare Antwort geliefert.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Privater Chat</translation>
    </message>
</context>
<context>
    <name>TranscriptPlaceholder</name>
    <message>
        <source>No messages here yet.</source>
        <translation>Hier gibt es noch keine Nachrichten.</translation>
    </message>
    <message>
        <source>Loading messages</source>
        <translation>Nachrichten werden geladen</translation>
    </message>
</context>
<context>
    <name>UserStore</name>
    <message>
        <source>Telegram user</source>
        <translation>Telegram-Nutzer</translation>
    </message>
    <message>
        <source>Typing…</source>
        <extracomment>The chat&apos;s subtitle while the other person types.</extracomment>
        <translation>schreibt…</translation>
    </message>
    <message>
        <source>%1 is typing…</source>
        <extracomment>A group&apos;s subtitle while a member types; %1 is the member&apos;s name.</extracomment>
        <translation>%1 schreibt…</translation>
    </message>
    <message>
        <source>Someone</source>
        <translation>Jemand</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>online</translation>
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
        <translation>Video, %1</translation>
    </message>
</context>
<context>
    <name>VoicePlayer</name>
    <message>
        <source>Audio %1, %2</source>
        <translation>Audio %1, %2</translation>
    </message>
    <message>
        <source>Voice message, %1</source>
        <translation>Sprachnachricht, %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Verbs: the voice message&apos;s play button.</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The time played and the whole length, as in &quot;0:12 of 1:05&quot;.</extracomment>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>VostApp</name>
    <message>
        <source>A compact Telegram client for the system tray.</source>
        <translation>Ein kompakter Telegram-Client für den Infobereich.</translation>
    </message>
    <message>
        <source>Use the offline demo account.</source>
        <translation>Offline-Demo-Konto verwenden.</translation>
    </message>
    <message>
        <source>Another Vost is still closing or not answering. Start Vost again in a moment.</source>
        <translation>Eine andere Vost-Instanz wird noch beendet oder reagiert nicht. Starte Vost gleich noch einmal.</translation>
    </message>
    <message>
        <source>Open Vost</source>
        <translation>Vost öffnen</translation>
    </message>
    <message>
        <source>Quit Vost</source>
        <translation>Vost beenden</translation>
    </message>
</context>
</TS>

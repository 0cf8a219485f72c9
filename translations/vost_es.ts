<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Announcer</name>
    <message>
        <source>New Telegram message</source>
        <translation>Nuevo mensaje de Telegram</translation>
    </message>
</context>
<context>
    <name>AppConfigurationErrorView</name>
    <message>
        <source>Vost needs to be reinstalled</source>
        <translation>Hay que reinstalar Vost</translation>
    </message>
    <message>
        <source>This copy of Vost is missing its application configuration. Please install the latest complete release from the app’s distributor.</source>
        <translation>A esta copia de Vost le falta la configuración de la aplicación. Instala la última versión completa desde el distribuidor de la app.</translation>
    </message>
</context>
<context>
    <name>ArchiveHeader</name>
    <message numerus="yes">
        <source>Archived chats, %n unread</source>
        <translation>
            <numerusform>Chats archivados, %n sin leer</numerusform>
            <numerusform>Chats archivados, %n sin leer</numerusform>
        </translation>
    </message>
    <message>
        <source>Archived chats</source>
        <translation>Chats archivados</translation>
    </message>
    <message>
        <source>Back to chats</source>
        <translation>Volver a los chats</translation>
    </message>
</context>
<context>
    <name>AuthorizationStore</name>
    <message>
        <source>Waiting to start</source>
        <translation>Esperando para iniciar</translation>
    </message>
    <message>
        <source>Received TDLib event: %1</source>
        <extracomment>%1 is the name of TDLib&apos;s event, such as updateOption.</extracomment>
        <translation>Evento de TDLib recibido: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>The Telegram session is closing.</source>
        <translation>La sesión de Telegram se está cerrando.</translation>
    </message>
    <message>
        <source>The Telegram session closed.</source>
        <translation>La sesión de Telegram se cerró.</translation>
    </message>
</context>
<context>
    <name>CallCard</name>
    <message>
        <source>Cancelled call</source>
        <translation>Llamada cancelada</translation>
    </message>
    <message>
        <source>Missed call</source>
        <translation>Llamada perdida</translation>
    </message>
    <message>
        <source>Declined call</source>
        <translation>Llamada rechazada</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <translation>Videollamada saliente</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <translation>Videollamada entrante</translation>
    </message>
    <message>
        <source>Outgoing call</source>
        <translation>Llamada saliente</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Llamada entrante</translation>
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
        <translation>¿Eliminar el chat con %1 y eliminar también el contacto?</translation>
    </message>
    <message>
        <source>Delete the chat “%1”?</source>
        <translation>¿Eliminar el chat “%1”?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the chat.</extracomment>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>ChatListView</name>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Chat list</source>
        <translation>Lista de chats</translation>
    </message>
    <message>
        <source>Scroll chats</source>
        <translation>Desplazar chats</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Sin resultados</translation>
    </message>
    <message>
        <source>No chats yet</source>
        <translation>Aún no hay chats</translation>
    </message>
</context>
<context>
    <name>ChatMenu</name>
    <message>
        <source>Chat actions</source>
        <translation>Acciones del chat</translation>
    </message>
    <message>
        <source>Delete chat</source>
        <translation>Eliminar chat</translation>
    </message>
    <message>
        <source>Delete chat and contact</source>
        <translation>Eliminar chat y contacto</translation>
    </message>
</context>
<context>
    <name>ChatRow</name>
    <message>
        <source>Deleting…</source>
        <translation>Eliminando…</translation>
    </message>
    <message>
        <source>Draft: %1</source>
        <extracomment>%1 is the start of the unsent text of the chat.</extracomment>
        <translation>Borrador: %1</translation>
    </message>
    <message>
        <source>secret chat</source>
        <extracomment>Read aloud after a chat&apos;s title, like the other states of a chat here.</extracomment>
        <translation>chat secreto</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>fijado</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>silenciado</translation>
    </message>
    <message>
        <source>archived</source>
        <translation>archivado</translation>
    </message>
    <message numerus="yes">
        <source>%n unread</source>
        <extracomment>How many messages of the chat are unread.</extracomment>
        <translation>
            <numerusform>%n sin leer</numerusform>
            <numerusform>%n sin leer</numerusform>
        </translation>
    </message>
    <message>
        <source>marked unread</source>
        <translation>marcado como no leído</translation>
    </message>
</context>
<context>
    <name>ChatSearchBar</name>
    <message>
        <source>Search in chat</source>
        <translation>Buscar en el chat</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Sin resultados</translation>
    </message>
    <message>
        <source>Search failed</source>
        <translation>No se pudo buscar</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n</source>
        <extracomment>Which search result shows, of how many: &quot;3 of 12&quot;.</extracomment>
        <translation>
            <numerusform>%1 de %n</numerusform>
            <numerusform>%1 de %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Older result</source>
        <translation>Resultado anterior</translation>
    </message>
    <message>
        <source>Newer result</source>
        <translation>Resultado siguiente</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>Cerrar búsqueda</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Pasted image %1.png</source>
        <extracomment>The file name of a pasted image; %1 is a short random code.</extracomment>
        <translation>Imagen pegada %1.png</translation>
    </message>
</context>
<context>
    <name>CodeBlock</name>
    <message>
        <source>Copy</source>
        <extracomment>A button on a block of code in a message: copies the code.</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copies the %1 code</source>
        <translation>Copia el código %1</translation>
    </message>
    <message>
        <source>Copies the code</source>
        <translation>Copia el código</translation>
    </message>
    <message>
        <source>%1 code: %2</source>
        <extracomment>How screen readers name a block of code in a message; %1 is the code.</extracomment>
        <translation>Código %1: %2</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Código: %1</translation>
    </message>
</context>
<context>
    <name>Composer</name>
    <message>
        <source>Composer</source>
        <translation>Área de redacción</translation>
    </message>
    <message>
        <source>Attach</source>
        <extracomment>A verb: the button that adds files.</extracomment>
        <translation>Adjuntar</translation>
    </message>
    <message>
        <source>Scroll message text</source>
        <translation>Desplazar el texto del mensaje</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A noun: the text being written.</extracomment>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emojis</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Stickers</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>The send button while a message is edited: a verb.</extracomment>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
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
        <translation>Editar mensaje</translation>
    </message>
    <message>
        <source>Reply to %1</source>
        <translation>Responder a %1</translation>
    </message>
    <message>
        <source>Cancel editing</source>
        <translation>Cancelar edición</translation>
    </message>
    <message>
        <source>Cancel reply</source>
        <translation>Cancelar respuesta</translation>
    </message>
</context>
<context>
    <name>ComposerMenu</name>
    <message>
        <source>Spelling</source>
        <translation>Ortografía</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>The composer&apos;s context menu without a misspelt word: the editing commands.</extracomment>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <extracomment>Keeps a word the spelling check does not know from being marked again.</extracomment>
        <translation>Añadir al diccionario</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ConnectionStatus</name>
    <message>
        <source>Waiting for network…</source>
        <extracomment>Above the chat list while the computer has no network connection</extracomment>
        <translation>Esperando red…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>Above the chat list while the link to Telegram is being made</extracomment>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>Above the chat list while what happened offline is being fetched</extracomment>
        <translation>Actualizando…</translation>
    </message>
</context>
<context>
    <name>ContactCard</name>
    <message>
        <source>Contact %1, %2</source>
        <translation>Contacto %1, %2</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to the person on the card.</extracomment>
        <translation>Enviar mensaje</translation>
    </message>
</context>
<context>
    <name>ContactMenu</name>
    <message>
        <source>Contact actions</source>
        <translation>Acciones del contacto</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to this contact.</extracomment>
        <translation>Enviar mensaje</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Eliminar contacto</translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>%1, online</source>
        <translation>%1, en línea</translation>
    </message>
    <message>
        <source>online</source>
        <extracomment>Said of a contact who is using Telegram right now.</extracomment>
        <translation>en línea</translation>
    </message>
</context>
<context>
    <name>ContactStore</name>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>Telegram devolvió un error desconocido.</translation>
    </message>
    <message>
        <source>Telegram took too long to respond. A submitted contact may already be saved. Check Contacts or try again.</source>
        <translation>Telegram tardó demasiado en responder. Puede que el contacto enviado ya se haya guardado. Revisa Contactos o inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Enter a first name. First and last names can each contain up to 64 characters.</source>
        <translation>Escribe un nombre. El nombre y el apellido pueden tener hasta 64 caracteres cada uno.</translation>
    </message>
    <message>
        <source>Enter a valid phone number including + and the country code (for example, +44 7700 900123).</source>
        <translation>Escribe un número de teléfono válido con + y el código de país (por ejemplo, +44 7700 900123).</translation>
    </message>
    <message>
        <source>Enter a Telegram username, such as @username, using letters, numbers and underscores.</source>
        <translation>Escribe un alias de Telegram, como @alias, con letras, números y guiones bajos.</translation>
    </message>
    <message>
        <source>The contact was saved, but the chat could not be opened. Try opening it from Contacts.</source>
        <translation>El contacto se guardó, pero no se pudo abrir el chat. Intenta abrirlo desde Contactos.</translation>
    </message>
    <message>
        <source>No Telegram account could be found for that number. Check the country code or try their username; Telegram privacy settings can prevent phone-number lookup.</source>
        <translation>No se encontró ninguna cuenta de Telegram con ese número. Revisa el código de país o prueba con su alias; la configuración de privacidad de Telegram puede impedir la búsqueda por número de teléfono.</translation>
    </message>
    <message>
        <source>Telegram could not complete this action.</source>
        <translation>Telegram no pudo completar esta acción.</translation>
    </message>
    <message>
        <source>The chat was deleted, but the contact could not be removed.</source>
        <translation>El chat se eliminó, pero no se pudo eliminar el contacto.</translation>
    </message>
    <message>
        <source>Telegram contact</source>
        <translation>Contacto de Telegram</translation>
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
        <translation>🎤 Mensaje de voz</translation>
    </message>
    <message>
        <source>Voice message</source>
        <translation>Mensaje de voz</translation>
    </message>
    <message>
        <source>Video message</source>
        <translation>Videomensaje</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Sticker</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>📎 Document</source>
        <translation>📎 Documento</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
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
        <translation>Llamada</translation>
    </message>
    <message>
        <source>📍 Location</source>
        <translation>📍 Ubicación</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Encuesta</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Unsupported message</source>
        <translation>Mensaje no compatible</translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation>Aún no hay mensajes</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Conversación privada</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Group or channel</source>
        <translation>Grupo o canal</translation>
    </message>
    <message>
        <source>Secret chat</source>
        <translation>Chat secreto</translation>
    </message>
</context>
<context>
    <name>ConversationView</name>
    <message>
        <source>Conversation with %1</source>
        <translation>Conversación con %1</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Scroll messages</source>
        <translation>Desplazar mensajes</translation>
    </message>
    <message>
        <source>Loading older messages</source>
        <translation>Cargando mensajes anteriores</translation>
    </message>
    <message>
        <source>Start of the conversation</source>
        <translation>Inicio de la conversación</translation>
    </message>
    <message>
        <source>Delete this message for everyone?</source>
        <translation>¿Eliminar este mensaje para todos?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the message.</extracomment>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Search in chat</source>
        <translation>Buscar en el chat</translation>
    </message>
</context>
<context>
    <name>DateTexts</name>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
</context>
<context>
    <name>DiceCard</name>
    <message>
        <source>%1 rolled %2</source>
        <extracomment>%1 is the die&apos;s emoji (a die, a dart, a ball), %2 the number it came up with.</extracomment>
        <translation>%1, resultado: %2</translation>
    </message>
</context>
<context>
    <name>DocumentCard</name>
    <message>
        <source>Document %1, %2</source>
        <translation>Documento %1, %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How much of the file has come and its whole size, as in &quot;1.2 MB of 5 MB&quot;.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the file with its application.</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the file to a folder.</extracomment>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>DownloadRing</name>
    <message>
        <source>Downloading, %1 %</source>
        <extracomment>%1 is how much has come, in percent.</extracomment>
        <translation>Descargando, %1 %</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Descargando</translation>
    </message>
</context>
<context>
    <name>EmojiPicker</name>
    <message>
        <source>Emoji picker</source>
        <translation>Selector de emojis</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Emoji sent lately.</extracomment>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Caras y emociones</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Personas y cuerpo</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Animales y naturaleza</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Comida y bebida</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Viajes y lugares</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Actividades</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Símbolos</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Banderas</translation>
    </message>
    <message>
        <source>Search emoji</source>
        <translation>Buscar emojis</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emojis</translation>
    </message>
    <message>
        <source>Scroll emoji</source>
        <translation>Desplazar emojis</translation>
    </message>
    <message>
        <source>No emoji found</source>
        <translation>No se encontraron emojis</translation>
    </message>
</context>
<context>
    <name>EmptyConversationView</name>
    <message>
        <source>Conversation</source>
        <translation>Conversación</translation>
    </message>
    <message>
        <source>Choose a Telegram chat or contact.</source>
        <translation>Elige un chat o un contacto de Telegram.</translation>
    </message>
</context>
<context>
    <name>ErrorBanner</name>
    <message>
        <source>Dismiss</source>
        <extracomment>A verb: close the error message.</extracomment>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>ErrorTexts</name>
    <message>
        <source>That phone number isn’t valid. Enter it with + and the country code, for example +44 7700 900123.</source>
        <translation>Ese número de teléfono no es válido. Escríbelo con + y el código de país, por ejemplo +44 7700 900123.</translation>
    </message>
    <message>
        <source>This phone number is banned from Telegram.</source>
        <translation>Este número de teléfono está bloqueado en Telegram.</translation>
    </message>
    <message>
        <source>This number has asked for too many codes. Try again later.</source>
        <translation>Este número ha pedido demasiados códigos. Inténtalo más tarde.</translation>
    </message>
    <message>
        <source>This number has no Telegram account yet. Sign up in Telegram’s phone app first.</source>
        <translation>Este número aún no tiene una cuenta de Telegram. Primero regístrate en la app de Telegram para teléfonos.</translation>
    </message>
    <message>
        <source>That code isn’t right. Check it and try again.</source>
        <translation>Ese código no es correcto. Revísalo e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Enter the code Telegram sent you.</source>
        <translation>Escribe el código que te envió Telegram.</translation>
    </message>
    <message>
        <source>That code has expired. Use a different number, or enter this one again for a new code.</source>
        <translation>Ese código ha expirado. Usa otro número o vuelve a escribir este para recibir un código nuevo.</translation>
    </message>
    <message>
        <source>That password isn’t right. Try again.</source>
        <translation>Esa contraseña no es correcta. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Enter your two-step verification password.</source>
        <translation>Escribe tu contraseña de verificación en dos pasos.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a while, then try again.</source>
        <translation>Demasiados intentos. Espera un rato y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Signing in has to start again. Enter your number once more.</source>
        <translation>Hay que volver a empezar el inicio de sesión. Escribe tu número otra vez.</translation>
    </message>
    <message>
        <source>Telegram refused this copy of Vost. Install the latest release.</source>
        <translation>Telegram rechazó esta copia de Vost. Instala la última versión.</translation>
    </message>
    <message>
        <source>Nobody on Telegram has that username.</source>
        <translation>Nadie en Telegram tiene ese alias.</translation>
    </message>
    <message>
        <source>That isn’t a valid username. Usernames use letters, numbers and underscores.</source>
        <translation>Ese alias no es válido. Los alias usan letras, números y guiones bajos.</translation>
    </message>
    <message>
        <source>Enter a first name.</source>
        <translation>Escribe un nombre.</translation>
    </message>
    <message>
        <source>That first name can’t be used. Try a shorter one.</source>
        <translation>Ese nombre no se puede usar. Prueba con uno más corto.</translation>
    </message>
    <message>
        <source>That last name can’t be used. Try a shorter one.</source>
        <translation>Ese apellido no se puede usar. Prueba con uno más corto.</translation>
    </message>
    <message>
        <source>Their privacy settings don’t allow this. Try their username instead.</source>
        <translation>Su configuración de privacidad no lo permite. Prueba con su alias.</translation>
    </message>
    <message>
        <source>That person can’t be added as a contact.</source>
        <translation>Esa persona no se puede añadir como contacto.</translation>
    </message>
</context>
<context>
    <name>FilePanel</name>
    <message>
        <source>Attach files</source>
        <translation>Adjuntar archivos</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
</context>
<context>
    <name>FormattedBody</name>
    <message>
        <source>Links to %1</source>
        <extracomment>The addresses behind the links of a message&apos;s text, for screen readers.</extracomment>
        <translation>Enlaza a %1</translation>
    </message>
    <message>
        <source>Quotation</source>
        <extracomment>Said by screen readers of a quoted paragraph in a message.</extracomment>
        <translation>Cita</translation>
    </message>
</context>
<context>
    <name>ForwardDialog</name>
    <message>
        <source>Forward to</source>
        <extracomment>The title of the list of chats a message can be forwarded to.</extracomment>
        <translation>Reenviar a</translation>
    </message>
    <message>
        <source>Search chats</source>
        <translation>Buscar chats</translation>
    </message>
    <message>
        <source>Chats to forward to</source>
        <translation>Chats a los que reenviar</translation>
    </message>
    <message>
        <source>Scroll chats to forward to</source>
        <translation>Desplazar los chats a los que reenviar</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Sin resultados</translation>
    </message>
</context>
<context>
    <name>FreedesktopNotificationPoster</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>A notification&apos;s action that answers its message.</extracomment>
        <translation>Responder</translation>
    </message>
    <message>
        <source>Reply…</source>
        <translation>Responder…</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Marcar como leído</translation>
    </message>
</context>
<context>
    <name>GlobalShortcut</name>
    <message>
        <source>Open or close Vost</source>
        <translation>Abrir o cerrar Vost</translation>
    </message>
</context>
<context>
    <name>LanguageChoice</name>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language that follows the system&apos;s own.</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
<context>
    <name>LocationCard</name>
    <message>
        <source>Location %1</source>
        <translation>Ubicación %1</translation>
    </message>
    <message>
        <source>Open map</source>
        <translation>Abrir mapa</translation>
    </message>
</context>
<context>
    <name>LoginPresenter</name>
    <message>
        <source>We’ve sent the code for %1 to the Telegram app on your other device.</source>
        <translation>Hemos enviado el código para %1 a la app de Telegram de tu otro dispositivo.</translation>
    </message>
    <message>
        <source>We’ve sent the code to %1 by SMS.</source>
        <translation>Hemos enviado el código al %1 por SMS.</translation>
    </message>
    <message>
        <source>Telegram is calling %1 to tell you the code.</source>
        <translation>Telegram está llamando al %1 para decirte el código.</translation>
    </message>
    <message>
        <source>Telegram is calling %1: the last digits of the calling number are the code.</source>
        <translation>Telegram está llamando al %1: las últimas cifras del número que llama son el código.</translation>
    </message>
    <message>
        <source>The code for %1 is waiting on fragment.com.</source>
        <translation>El código para %1 te espera en fragment.com.</translation>
    </message>
    <message>
        <source>The code for %1 was sent to Telegram on your phone.</source>
        <translation>El código para %1 se envió a Telegram en tu teléfono.</translation>
    </message>
    <message>
        <source>The code was sent for %1.</source>
        <translation>Se envió el código para %1.</translation>
    </message>
</context>
<context>
    <name>LoginTexts</name>
    <message>
        <source>Preparing Telegram</source>
        <translation>Preparando Telegram</translation>
    </message>
    <message>
        <source>Starting the secure TDLib connection…</source>
        <translation>Iniciando la conexión segura con TDLib…</translation>
    </message>
    <message>
        <source>Sign in to Telegram</source>
        <translation>Iniciar sesión en Telegram</translation>
    </message>
    <message>
        <source>Enter the telephone number associated with your Telegram account, including its international country code.</source>
        <translation>Escribe el número de teléfono asociado a tu cuenta de Telegram, con su código de país internacional.</translation>
    </message>
    <message>
        <source>Telephone number, including country code</source>
        <translation>Número de teléfono, con el código de país</translation>
    </message>
    <message>
        <source>Enter your verification code</source>
        <translation>Escribe tu código de verificación</translation>
    </message>
    <message>
        <source>Telegram sent a code to one of your existing Telegram sessions or by another supported method.</source>
        <translation>Telegram envió un código a una de tus sesiones abiertas de Telegram o por otro método compatible.</translation>
    </message>
    <message>
        <source>Telegram verification code</source>
        <translation>Código de verificación de Telegram</translation>
    </message>
    <message>
        <source>Two-step verification</source>
        <translation>Verificación en dos pasos</translation>
    </message>
    <message>
        <source>Your account uses an additional password. Enter it to complete sign-in.</source>
        <translation>Tu cuenta usa una contraseña adicional. Escríbela para completar el inicio de sesión.</translation>
    </message>
    <message>
        <source>Two-step verification password</source>
        <translation>Contraseña de verificación en dos pasos</translation>
    </message>
    <message>
        <source>Telegram is unavailable</source>
        <translation>Telegram no está disponible</translation>
    </message>
    <message>
        <source>The app could not start its Telegram connection.</source>
        <translation>La app no pudo iniciar su conexión con Telegram.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <extracomment>The two-step password&apos;s hint, as its owner wrote it.</extracomment>
        <translation>Pista: %1</translation>
    </message>
    <message>
        <source>Verification codes and passwords are sent directly to TDLib and are never saved by this app.</source>
        <translation>Los códigos de verificación y las contraseñas se envían directamente a TDLib y esta app nunca los guarda.</translation>
    </message>
</context>
<context>
    <name>MessageBubble</name>
    <message>
        <source>sending</source>
        <extracomment>A message&apos;s delivery state, read aloud after its time; the next two as well.</extracomment>
        <translation>enviando</translation>
    </message>
    <message>
        <source>read</source>
        <translation>leído</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Tú</translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Said of a message that was changed after it was sent.</extracomment>
        <translation>editado</translation>
    </message>
    <message>
        <source>%1 %2, yours</source>
        <extracomment>A reaction read aloud: %1 is its emoji, %2 how many reacted with it; you did too.</extracomment>
        <translation>%1 %2, incluida la tuya</translation>
    </message>
    <message>
        <source>Unread messages</source>
        <translation>Mensajes no leídos</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The button that opens a message&apos;s actions.</extracomment>
        <translation>Más</translation>
    </message>
    <message>
        <source>Forwarded from %1</source>
        <translation>Reenviado de %1</translation>
    </message>
    <message>
        <source>Link preview: %1</source>
        <translation>Vista previa del enlace: %1</translation>
    </message>
    <message>
        <source>edited  %1</source>
        <extracomment>An edited message&apos;s time; %1 is the time, such as 14:05.</extracomment>
        <translation>editado  %1</translation>
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
        <translation>Archivo</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>Message actions</source>
        <translation>Acciones del mensaje</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>Reacciones</translation>
    </message>
    <message>
        <source>Reply</source>
        <extracomment>Verbs: the actions of the message menu, down to Delete.</extracomment>
        <translation>Responder</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Reenviar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>hidden text</source>
        <extracomment>Read by screen readers in place of a spoiler, a part of a message hidden until clicked.</extracomment>
        <translation>texto oculto</translation>
    </message>
</context>
<context>
    <name>NewChatView</name>
    <message>
        <source>New chat</source>
        <translation>Nuevo chat</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Buscar contactos</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>Scroll contacts</source>
        <translation>Desplazar contactos</translation>
    </message>
    <message>
        <source>Found by Telegram</source>
        <translation>Encontrados en Telegram</translation>
    </message>
    <message>
        <source>No contacts found</source>
        <translation>No se encontraron contactos</translation>
    </message>
    <message>
        <source>No contacts yet</source>
        <translation>Aún no hay contactos</translation>
    </message>
    <message>
        <source>Remove %1 from your contacts?</source>
        <translation>¿Quitar a %1 de tus contactos?</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Eliminar contacto</translation>
    </message>
</context>
<context>
    <name>NewContactForms</name>
    <message>
        <source>Add contact</source>
        <translation>Añadir contacto</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Apellido</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de teléfono</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A noun: a private note about the new contact.</extracomment>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Open username</source>
        <extracomment>A form&apos;s title: open a chat by someone&apos;s public username.</extracomment>
        <translation>Abrir por alias</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: the button that opens the chat with that username.</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Opening the chat</source>
        <translation>Abriendo el chat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Ir al mensaje más reciente</translation>
    </message>
    <message numerus="yes">
        <source>↓ %n new</source>
        <extracomment>On the button under the transcript: how many messages arrived below, with an arrow pointing down to them.</extracomment>
        <translation>
            <numerusform>↓ %n nuevo</numerusform>
            <numerusform>↓ %n nuevos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <extracomment>The same button read aloud: how many messages arrived below.</extracomment>
        <translation>
            <numerusform>%n mensaje nuevo</numerusform>
            <numerusform>%n mensajes nuevos</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the first new message</source>
        <translation>Ir al primer mensaje nuevo</translation>
    </message>
</context>
<context>
    <name>PendingStrip</name>
    <message>
        <source>Files to send</source>
        <translation>Archivos para enviar</translation>
    </message>
    <message>
        <source>Scroll files to send</source>
        <translation>Desplazar los archivos para enviar</translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation>Foto %1</translation>
    </message>
    <message>
        <source>Document %1, %2</source>
        <translation>Documento %1, %2</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>Send as file</source>
        <translation>Enviar como archivo</translation>
    </message>
    <message>
        <source>%1 is empty and can’t be sent.</source>
        <translation>%1 está vacío y no se puede enviar.</translation>
    </message>
    <message>
        <source>%1 is a folder; choose the files in it.</source>
        <translation>%1 es una carpeta; elige los archivos que contiene.</translation>
    </message>
    <message>
        <source>%1 is larger than 2 GB, more than Telegram takes.</source>
        <translation>%1 pesa más de 2 GB, el máximo que admite Telegram.</translation>
    </message>
    <message>
        <source>%1 can’t be read.</source>
        <translation>%1 no se puede leer.</translation>
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
            <numerusform>Álbum, %n foto</numerusform>
            <numerusform>Álbum, %n fotos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PhotoViewer</name>
    <message>
        <source>Photo viewer</source>
        <translation>Visor de fotos</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>Foto %1 de %2</translation>
    </message>
    <message>
        <source>Video %1 of %2</source>
        <translation>Video %1 de %2</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous picture of the album.</extracomment>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next picture of the album.</extracomment>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the picture to a folder.</extracomment>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the picture with its application.</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The picture shown and how many the album has, as in &quot;2 of 5&quot;.</extracomment>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>PollCard</name>
    <message>
        <source>Quiz</source>
        <translation>Trivia</translation>
    </message>
    <message>
        <source>Anonymous poll</source>
        <translation>Encuesta anónima</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Encuesta</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1 finalizada</translation>
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
            <numerusform>%n voto</numerusform>
            <numerusform>%n votos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreferencesView</name>
    <message>
        <source>Preferences</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Scroll preferences</source>
        <translation>Desplazar ajustes</translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>Titles of the preferences&apos; sections.</extracomment>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>The appearance that follows the system&apos;s light or dark setting.</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sonidos</translation>
    </message>
    <message>
        <source>Play sounds</source>
        <translation>Reproducir sonidos</translation>
    </message>
    <message>
        <source>Sound pack</source>
        <translation>Paquete de sonidos</translation>
    </message>
    <message>
        <source>Crystal</source>
        <extracomment>Names of the sound packs.</extracomment>
        <translation>Cristal</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Clásico</translation>
    </message>
    <message>
        <source>Playful</source>
        <translation>Divertido</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Mostrar notificaciones</translation>
    </message>
    <message>
        <source>Start Vost when I sign in to my computer</source>
        <translation>Abrir Vost al iniciar sesión en el equipo</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Change account</source>
        <extracomment>A verb: sign out and sign in to another account.</extracomment>
        <translation>Cambiar de cuenta</translation>
    </message>
    <message>
        <source>Demo account: nothing leaves this computer</source>
        <translation>Cuenta de demostración: nada sale de este equipo</translation>
    </message>
    <message>
        <source>Vost %1</source>
        <extracomment>%1 is the version, such as 0.1.0.</extracomment>
        <translation>Vost %1</translation>
    </message>
    <message>
        <source>Sign out of this account and sign in to another?</source>
        <translation>¿Cerrar sesión en esta cuenta e iniciar sesión en otra?</translation>
    </message>
    <message>
        <source>Check spelling</source>
        <extracomment>Whether the composer underlines misspelt words.</extracomment>
        <translation>Revisar la ortografía</translation>
    </message>
</context>
<context>
    <name>ReplyQuote</name>
    <message>
        <source>You</source>
        <translation>Tú</translation>
    </message>
    <message>
        <source>Message not found</source>
        <translation>Mensaje no encontrado</translation>
    </message>
    <message>
        <source>Reply to %1: %2</source>
        <extracomment>A quoted message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>Respuesta a %1: %2</translation>
    </message>
    <message>
        <source>a message</source>
        <translation>un mensaje</translation>
    </message>
</context>
<context>
    <name>ShortcutChoice</name>
    <message>
        <source>Press keys…</source>
        <extracomment>Shown on the shortcut&apos;s button while it waits for a key combination.</extracomment>
        <translation>Pulsa las teclas…</translation>
    </message>
    <message>
        <source>None</source>
        <comment>shortcut</comment>
        <extracomment>On the shortcut&apos;s button when no shortcut is chosen.</extracomment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Shortcut to open Vost</source>
        <translation>Atajo para abrir Vost</translation>
    </message>
    <message>
        <source>Taken by another program</source>
        <translation>En uso por otro programa</translation>
    </message>
    <message>
        <source>Not available on this desktop</source>
        <translation>No disponible en este escritorio</translation>
    </message>
    <message>
        <source>Not allowed by the desktop</source>
        <extracomment>The desktop was asked for the shortcut and did not give it.</extracomment>
        <translation>El escritorio no lo permitió</translation>
    </message>
</context>
<context>
    <name>SidebarToolbar</name>
    <message>
        <source>New chat</source>
        <translation>Nuevo chat</translation>
    </message>
    <message>
        <source>New chat (Ctrl+N)</source>
        <translation>Nuevo chat (Ctrl+N)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Preferences (Ctrl+,)</source>
        <translation>Ajustes (Ctrl+,)</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message numerus="yes">
        <source>Vost, %n unread messages</source>
        <extracomment>The tray icon&apos;s accessible name.</extracomment>
        <translation>
            <numerusform>Vost, %n mensaje sin leer</numerusform>
            <numerusform>Vost, %n mensajes sin leer</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for network…</source>
        <extracomment>The tray item&apos;s tool tip while the computer has no network connection</extracomment>
        <translation>Esperando red…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>The tray item&apos;s tool tip while the link to Telegram is being made</extracomment>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>The tray item&apos;s tool tip while what happened offline is being fetched</extracomment>
        <translation>Actualizando…</translation>
    </message>
</context>
<context>
    <name>StickerPicker</name>
    <message>
        <source>Sticker picker</source>
        <translation>Selector de stickers</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Tabs of the sticker picker: stickers sent lately, then installed, then popular ones.</extracomment>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Instalados</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Tendencias</translation>
    </message>
    <message>
        <source>Search stickers</source>
        <translation>Buscar stickers</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Stickers</translation>
    </message>
    <message>
        <source>Scroll stickers</source>
        <translation>Desplazar stickers</translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation>Sticker %1</translation>
    </message>
    <message>
        <source>No stickers found</source>
        <translation>No se encontraron stickers</translation>
    </message>
    <message>
        <source>No stickers here yet</source>
        <translation>Aún no hay stickers aquí</translation>
    </message>
    <message>
        <source>Loading stickers</source>
        <translation>Cargando stickers</translation>
    </message>
</context>
<context>
    <name>StickerStore</name>
    <message>
        <source>Unable to load stickers.</source>
        <translation>No se pudieron cargar los stickers.</translation>
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
        <translation>TDLib no está incluido en esta compilación.</translation>
    </message>
    <message>
        <source>TDLib could not be loaded: %1</source>
        <extracomment>%1 is the system loader&apos;s own message.</extracomment>
        <translation>No se pudo cargar TDLib: %1</translation>
    </message>
    <message>
        <source>TDLib is missing the required function %1.</source>
        <extracomment>%1 is the name of a function of TDLib&apos;s library, such as td_create_client_id.</extracomment>
        <translation>A TDLib le falta la función necesaria %1.</translation>
    </message>
</context>
<context>
    <name>TelegramLoginView</name>
    <message>
        <source>Sign in</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Login Information</source>
        <extracomment>The group of fields where the sign-in details are typed.</extracomment>
        <translation>Datos de inicio de sesión</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Use a different number</source>
        <translation>Usar otro número</translation>
    </message>
</context>
<context>
    <name>TelegramSession</name>
    <message>
        <source>Loading the bundled TDLib library…</source>
        <translation>Cargando la biblioteca TDLib incluida…</translation>
    </message>
    <message>
        <source>TDLib loaded; creating a client…</source>
        <translation>TDLib cargado; creando un cliente…</translation>
    </message>
    <message>
        <source>Client created; waiting for TDLib’s first event…</source>
        <translation>Cliente creado; esperando el primer evento de TDLib…</translation>
    </message>
    <message>
        <source>Unable to refresh chats.</source>
        <translation>No se pudieron actualizar los chats.</translation>
    </message>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>Telegram devolvió un error desconocido.</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>The sender&apos;s name on one&apos;s own messages.</extracomment>
        <translation>Tú</translation>
    </message>
    <message>
        <source>TDLib returned an unreadable response.</source>
        <translation>TDLib devolvió una respuesta ilegible.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>En línea</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Conversación privada</translation>
    </message>
</context>
<context>
    <name>TranscriptPlaceholder</name>
    <message>
        <source>No messages here yet.</source>
        <translation>Aún no hay mensajes aquí.</translation>
    </message>
    <message>
        <source>Loading messages</source>
        <translation>Cargando mensajes</translation>
    </message>
</context>
<context>
    <name>UserStore</name>
    <message>
        <source>Telegram user</source>
        <translation>Usuario de Telegram</translation>
    </message>
    <message>
        <source>Typing…</source>
        <extracomment>The chat&apos;s subtitle while the other person types.</extracomment>
        <translation>Escribiendo…</translation>
    </message>
    <message>
        <source>%1 is typing…</source>
        <extracomment>A group&apos;s subtitle while a member types; %1 is the member&apos;s name.</extracomment>
        <translation>%1 está escribiendo…</translation>
    </message>
    <message>
        <source>Someone</source>
        <translation>Alguien</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>En línea</translation>
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
        <translation>Mensaje de voz, %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Verbs: the voice message&apos;s play button.</extracomment>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The time played and the whole length, as in &quot;0:12 of 1:05&quot;.</extracomment>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>VostApp</name>
    <message>
        <source>A compact Telegram client for the system tray.</source>
        <translation>Un cliente compacto de Telegram para la bandeja del sistema.</translation>
    </message>
    <message>
        <source>Use the offline demo account.</source>
        <translation>Usar la cuenta de demostración sin conexión.</translation>
    </message>
    <message>
        <source>Another Vost is still closing or not answering. Start Vost again in a moment.</source>
        <translation>Otra instancia de Vost aún se está cerrando o no responde. Vuelve a abrir Vost en un momento.</translation>
    </message>
    <message>
        <source>Open Vost</source>
        <translation>Abrir Vost</translation>
    </message>
    <message>
        <source>Quit Vost</source>
        <translation>Salir de Vost</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Announcer</name>
    <message>
        <source>New Telegram message</source>
        <translation>Nova mensagem do Telegram</translation>
    </message>
</context>
<context>
    <name>AppConfigurationErrorView</name>
    <message>
        <source>Vost needs to be reinstalled</source>
        <translation>O Vost precisa ser reinstalado</translation>
    </message>
    <message>
        <source>This copy of Vost is missing its application configuration. Please install the latest complete release from the app’s distributor.</source>
        <translation>Esta cópia do Vost está sem a configuração do app. Instale a versão completa mais recente fornecida pelo distribuidor do app.</translation>
    </message>
</context>
<context>
    <name>ArchiveHeader</name>
    <message numerus="yes">
        <source>Archived chats, %n unread</source>
        <translation>
            <numerusform>Conversas arquivadas, %n mensagem não lida</numerusform>
            <numerusform>Conversas arquivadas, %n mensagens não lidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Archived chats</source>
        <translation>Conversas arquivadas</translation>
    </message>
    <message>
        <source>Back to chats</source>
        <translation>Voltar às conversas</translation>
    </message>
</context>
<context>
    <name>AuthorizationStore</name>
    <message>
        <source>Waiting to start</source>
        <translation>Aguardando o início</translation>
    </message>
    <message>
        <source>Received TDLib event: %1</source>
        <extracomment>%1 is the name of TDLib&apos;s event, such as updateOption.</extracomment>
        <translation>Evento da TDLib recebido: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>The Telegram session is closing.</source>
        <translation>A sessão do Telegram está sendo encerrada.</translation>
    </message>
    <message>
        <source>The Telegram session closed.</source>
        <translation>A sessão do Telegram foi encerrada.</translation>
    </message>
</context>
<context>
    <name>CallCard</name>
    <message>
        <source>Cancelled call</source>
        <translation>Chamada cancelada</translation>
    </message>
    <message>
        <source>Missed call</source>
        <translation>Chamada perdida</translation>
    </message>
    <message>
        <source>Declined call</source>
        <translation>Chamada recusada</translation>
    </message>
    <message>
        <source>Outgoing video call</source>
        <translation>Videochamada efetuada</translation>
    </message>
    <message>
        <source>Incoming video call</source>
        <translation>Videochamada recebida</translation>
    </message>
    <message>
        <source>Outgoing call</source>
        <translation>Chamada efetuada</translation>
    </message>
    <message>
        <source>Incoming call</source>
        <translation>Chamada recebida</translation>
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
        <translation>Conversas</translation>
    </message>
    <message>
        <source>Delete the chat with %1 and remove them from your contacts?</source>
        <translation>Apagar a conversa e remover %1 dos seus contatos?</translation>
    </message>
    <message>
        <source>Delete the chat “%1”?</source>
        <translation>Apagar a conversa “%1”?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the chat.</extracomment>
        <translation>Apagar</translation>
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
        <translation>Lista de conversas</translation>
    </message>
    <message>
        <source>Scroll chats</source>
        <translation>Rolar conversas</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Nenhum resultado</translation>
    </message>
    <message>
        <source>No chats yet</source>
        <translation>Nenhuma conversa ainda</translation>
    </message>
</context>
<context>
    <name>ChatMenu</name>
    <message>
        <source>Chat actions</source>
        <translation>Ações da conversa</translation>
    </message>
    <message>
        <source>Delete chat</source>
        <translation>Apagar conversa</translation>
    </message>
    <message>
        <source>Delete chat and contact</source>
        <translation>Apagar conversa e contato</translation>
    </message>
</context>
<context>
    <name>ChatRow</name>
    <message>
        <source>Deleting…</source>
        <translation>Apagando…</translation>
    </message>
    <message>
        <source>Draft: %1</source>
        <extracomment>%1 is the start of the unsent text of the chat.</extracomment>
        <translation>Rascunho: %1</translation>
    </message>
    <message>
        <source>secret chat</source>
        <extracomment>Read aloud after a chat&apos;s title, like the other states of a chat here.</extracomment>
        <translation>chat secreto</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>fixada</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>silenciada</translation>
    </message>
    <message>
        <source>archived</source>
        <translation>arquivada</translation>
    </message>
    <message numerus="yes">
        <source>%n unread</source>
        <extracomment>How many messages of the chat are unread.</extracomment>
        <translation>
            <numerusform>%n mensagem não lida</numerusform>
            <numerusform>%n mensagens não lidas</numerusform>
        </translation>
    </message>
    <message>
        <source>marked unread</source>
        <translation>marcada como não lida</translation>
    </message>
</context>
<context>
    <name>ChatSearchBar</name>
    <message>
        <source>Search in chat</source>
        <translation>Buscar no chat</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Nenhum resultado</translation>
    </message>
    <message>
        <source>Search failed</source>
        <translation>Não foi possível buscar</translation>
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
        <translation>Próximo resultado</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>Fechar busca</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>Pasted image %1.png</source>
        <extracomment>The file name of a pasted image; %1 is a short random code.</extracomment>
        <translation>Imagem colada %1.png</translation>
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
        <translation>Copia o código %1</translation>
    </message>
    <message>
        <source>Copies the code</source>
        <translation>Copia o código</translation>
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
        <translation>Caixa de mensagem</translation>
    </message>
    <message>
        <source>Attach</source>
        <extracomment>A verb: the button that adds files.</extracomment>
        <translation>Anexar</translation>
    </message>
    <message>
        <source>Scroll message text</source>
        <translation>Rolar texto da mensagem</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A noun: the text being written.</extracomment>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Figurinhas</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>The send button while a message is edited: a verb.</extracomment>
        <translation>Salvar</translation>
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
        <translation>Editar mensagem</translation>
    </message>
    <message>
        <source>Reply to %1</source>
        <translation>Responder a %1</translation>
    </message>
    <message>
        <source>Cancel editing</source>
        <translation>Cancelar edição</translation>
    </message>
    <message>
        <source>Cancel reply</source>
        <translation>Cancelar resposta</translation>
    </message>
</context>
<context>
    <name>ComposerMenu</name>
    <message>
        <source>Spelling</source>
        <translation>Ortografia</translation>
    </message>
    <message>
        <source>Edit</source>
        <extracomment>The composer&apos;s context menu without a misspelt word: the editing commands.</extracomment>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Add to dictionary</source>
        <extracomment>Keeps a word the spelling check does not know from being marked again.</extracomment>
        <translation>Adicionar ao dicionário</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
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
        <translation>Aguardando rede…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>Above the chat list while the link to Telegram is being made</extracomment>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>Above the chat list while what happened offline is being fetched</extracomment>
        <translation>Atualizando…</translation>
    </message>
</context>
<context>
    <name>ContactCard</name>
    <message>
        <source>Contact %1, %2</source>
        <translation>Contato %1, %2</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to the person on the card.</extracomment>
        <translation>Enviar mensagem</translation>
    </message>
</context>
<context>
    <name>ContactMenu</name>
    <message>
        <source>Contact actions</source>
        <translation>Ações do contato</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A verb: write to this contact.</extracomment>
        <translation>Enviar mensagem</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Apagar contato</translation>
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
        <translation>O Telegram retornou um erro desconhecido.</translation>
    </message>
    <message>
        <source>Telegram took too long to respond. A submitted contact may already be saved. Check Contacts or try again.</source>
        <translation>O Telegram demorou demais para responder. O contato enviado talvez já tenha sido salvo. Verifique os Contatos ou tente novamente.</translation>
    </message>
    <message>
        <source>Enter a first name. First and last names can each contain up to 64 characters.</source>
        <translation>Digite um nome. O nome e o sobrenome podem ter até 64 caracteres cada.</translation>
    </message>
    <message>
        <source>Enter a valid phone number including + and the country code (for example, +44 7700 900123).</source>
        <translation>Digite um número de telefone válido com + e o código do país (por exemplo, +44 7700 900123).</translation>
    </message>
    <message>
        <source>Enter a Telegram username, such as @username, using letters, numbers and underscores.</source>
        <translation>Digite um nome de usuário do Telegram, como @usuario, usando letras, números e sublinhados.</translation>
    </message>
    <message>
        <source>The contact was saved, but the chat could not be opened. Try opening it from Contacts.</source>
        <translation>O contato foi salvo, mas não foi possível abrir a conversa. Tente abri-la pelos Contatos.</translation>
    </message>
    <message>
        <source>No Telegram account could be found for that number. Check the country code or try their username; Telegram privacy settings can prevent phone-number lookup.</source>
        <translation>Nenhuma conta do Telegram foi encontrada para esse número. Verifique o código do país ou tente o nome de usuário; as configurações de privacidade do Telegram podem impedir a busca por número de telefone.</translation>
    </message>
    <message>
        <source>Telegram could not complete this action.</source>
        <translation>O Telegram não conseguiu concluir esta ação.</translation>
    </message>
    <message>
        <source>The chat was deleted, but the contact could not be removed.</source>
        <translation>A conversa foi apagada, mas não foi possível remover o contato.</translation>
    </message>
    <message>
        <source>Telegram contact</source>
        <translation>Contato do Telegram</translation>
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
        <translation>🎬 Vídeo</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>🎤 Voice message</source>
        <translation>🎤 Mensagem de voz</translation>
    </message>
    <message>
        <source>Voice message</source>
        <translation>Mensagem de voz</translation>
    </message>
    <message>
        <source>Video message</source>
        <translation>Mensagem de vídeo</translation>
    </message>
    <message>
        <source>Sticker</source>
        <translation>Figurinha</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animação</translation>
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
        <translation>🎵 Áudio</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Chamada</translation>
    </message>
    <message>
        <source>📍 Location</source>
        <translation>📍 Localização</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contato</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Enquete</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Unsupported message</source>
        <translation>Mensagem não suportada</translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation>Nenhuma mensagem ainda</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Conversa privada</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Group or channel</source>
        <translation>Grupo ou canal</translation>
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
        <translation>Conversa com %1</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>Scroll messages</source>
        <translation>Rolar mensagens</translation>
    </message>
    <message>
        <source>Loading older messages</source>
        <translation>Carregando mensagens anteriores</translation>
    </message>
    <message>
        <source>Start of the conversation</source>
        <translation>Início da conversa</translation>
    </message>
    <message>
        <source>Delete this message for everyone?</source>
        <translation>Apagar esta mensagem para todos?</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>A verb: the button that confirms deleting the message.</extracomment>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Search in chat</source>
        <translation>Buscar no chat</translation>
    </message>
</context>
<context>
    <name>DateTexts</name>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
</context>
<context>
    <name>DiceCard</name>
    <message>
        <source>%1 rolled %2</source>
        <extracomment>%1 is the die&apos;s emoji (a die, a dart, a ball), %2 the number it came up with.</extracomment>
        <translation>%1: resultado %2</translation>
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
        <translation>Salvar</translation>
    </message>
</context>
<context>
    <name>DownloadRing</name>
    <message>
        <source>Downloading, %1 %</source>
        <extracomment>%1 is how much has come, in percent.</extracomment>
        <translation>Baixando, %1 %</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Baixando</translation>
    </message>
</context>
<context>
    <name>EmojiPicker</name>
    <message>
        <source>Emoji picker</source>
        <translation>Seletor de emojis</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Emoji sent lately.</extracomment>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Carinhas e emoções</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Pessoas e corpo</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Animais e natureza</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Comidas e bebidas</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Viagens e lugares</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Atividades</translation>
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
        <translation>Bandeiras</translation>
    </message>
    <message>
        <source>Search emoji</source>
        <translation>Buscar emoji</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Scroll emoji</source>
        <translation>Rolar emojis</translation>
    </message>
    <message>
        <source>No emoji found</source>
        <translation>Nenhum emoji encontrado</translation>
    </message>
</context>
<context>
    <name>EmptyConversationView</name>
    <message>
        <source>Conversation</source>
        <translation>Conversa</translation>
    </message>
    <message>
        <source>Choose a Telegram chat or contact.</source>
        <translation>Escolha uma conversa ou um contato do Telegram.</translation>
    </message>
</context>
<context>
    <name>ErrorBanner</name>
    <message>
        <source>Dismiss</source>
        <extracomment>A verb: close the error message.</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>ErrorTexts</name>
    <message>
        <source>That phone number isn’t valid. Enter it with + and the country code, for example +44 7700 900123.</source>
        <translation>Esse número de telefone não é válido. Digite-o com + e o código do país, por exemplo, +44 7700 900123.</translation>
    </message>
    <message>
        <source>This phone number is banned from Telegram.</source>
        <translation>Este número de telefone está banido do Telegram.</translation>
    </message>
    <message>
        <source>This number has asked for too many codes. Try again later.</source>
        <translation>Este número solicitou códigos demais. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This number has no Telegram account yet. Sign up in Telegram’s phone app first.</source>
        <translation>Este número ainda não tem uma conta no Telegram. Cadastre-se primeiro no app do Telegram para celular.</translation>
    </message>
    <message>
        <source>That code isn’t right. Check it and try again.</source>
        <translation>Código incorreto. Confira e tente novamente.</translation>
    </message>
    <message>
        <source>Enter the code Telegram sent you.</source>
        <translation>Digite o código que o Telegram enviou para você.</translation>
    </message>
    <message>
        <source>That code has expired. Use a different number, or enter this one again for a new code.</source>
        <translation>Esse código expirou. Use outro número ou digite este novamente para receber um novo código.</translation>
    </message>
    <message>
        <source>That password isn’t right. Try again.</source>
        <translation>Senha incorreta. Tente novamente.</translation>
    </message>
    <message>
        <source>Enter your two-step verification password.</source>
        <translation>Digite sua senha da verificação em duas etapas.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a while, then try again.</source>
        <translation>Muitas tentativas. Aguarde um pouco e tente novamente.</translation>
    </message>
    <message>
        <source>Signing in has to start again. Enter your number once more.</source>
        <translation>É preciso recomeçar o login. Digite seu número novamente.</translation>
    </message>
    <message>
        <source>Telegram refused this copy of Vost. Install the latest release.</source>
        <translation>O Telegram recusou esta cópia do Vost. Instale a versão mais recente.</translation>
    </message>
    <message>
        <source>Nobody on Telegram has that username.</source>
        <translation>Ninguém no Telegram tem esse nome de usuário.</translation>
    </message>
    <message>
        <source>That isn’t a valid username. Usernames use letters, numbers and underscores.</source>
        <translation>Esse nome de usuário não é válido. Nomes de usuário usam letras, números e sublinhados.</translation>
    </message>
    <message>
        <source>Enter a first name.</source>
        <translation>Digite um nome.</translation>
    </message>
    <message>
        <source>That first name can’t be used. Try a shorter one.</source>
        <translation>Esse nome não pode ser usado. Tente um mais curto.</translation>
    </message>
    <message>
        <source>That last name can’t be used. Try a shorter one.</source>
        <translation>Esse sobrenome não pode ser usado. Tente um mais curto.</translation>
    </message>
    <message>
        <source>Their privacy settings don’t allow this. Try their username instead.</source>
        <translation>As configurações de privacidade dessa pessoa não permitem isso. Tente usar o nome de usuário.</translation>
    </message>
    <message>
        <source>That person can’t be added as a contact.</source>
        <translation>Essa pessoa não pode ser adicionada como contato.</translation>
    </message>
</context>
<context>
    <name>FilePanel</name>
    <message>
        <source>Attach files</source>
        <translation>Anexar arquivos</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
</context>
<context>
    <name>FormattedBody</name>
    <message>
        <source>Links to %1</source>
        <extracomment>The addresses behind the links of a message&apos;s text, for screen readers.</extracomment>
        <translation>Leva a %1</translation>
    </message>
    <message>
        <source>Quotation</source>
        <extracomment>Said by screen readers of a quoted paragraph in a message.</extracomment>
        <translation>Citação</translation>
    </message>
</context>
<context>
    <name>ForwardDialog</name>
    <message>
        <source>Forward to</source>
        <extracomment>The title of the list of chats a message can be forwarded to.</extracomment>
        <translation>Encaminhar para</translation>
    </message>
    <message>
        <source>Search chats</source>
        <translation>Buscar conversas</translation>
    </message>
    <message>
        <source>Chats to forward to</source>
        <translation>Conversas de destino</translation>
    </message>
    <message>
        <source>Scroll chats to forward to</source>
        <translation>Rolar conversas de destino</translation>
    </message>
    <message>
        <source>No results</source>
        <translation>Nenhum resultado</translation>
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
        <translation>Marcar como lido</translation>
    </message>
</context>
<context>
    <name>GlobalShortcut</name>
    <message>
        <source>Open or close Vost</source>
        <translation>Abrir ou fechar o Vost</translation>
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
        <translation>Localização %1</translation>
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
        <translation>Enviamos o código do número %1 para o app do Telegram no seu outro dispositivo.</translation>
    </message>
    <message>
        <source>We’ve sent the code to %1 by SMS.</source>
        <translation>Enviamos o código para %1 por SMS.</translation>
    </message>
    <message>
        <source>Telegram is calling %1 to tell you the code.</source>
        <translation>O Telegram está ligando para %1 para informar o código.</translation>
    </message>
    <message>
        <source>Telegram is calling %1: the last digits of the calling number are the code.</source>
        <translation>O Telegram está ligando para %1: os últimos dígitos do número que está ligando são o código.</translation>
    </message>
    <message>
        <source>The code for %1 is waiting on fragment.com.</source>
        <translation>O código do número %1 está disponível em fragment.com.</translation>
    </message>
    <message>
        <source>The code for %1 was sent to Telegram on your phone.</source>
        <translation>O código do número %1 foi enviado para o Telegram no seu celular.</translation>
    </message>
    <message>
        <source>The code was sent for %1.</source>
        <translation>O código do número %1 foi enviado.</translation>
    </message>
</context>
<context>
    <name>LoginTexts</name>
    <message>
        <source>Preparing Telegram</source>
        <translation>Preparando o Telegram</translation>
    </message>
    <message>
        <source>Starting the secure TDLib connection…</source>
        <translation>Iniciando a conexão segura com a TDLib…</translation>
    </message>
    <message>
        <source>Sign in to Telegram</source>
        <translation>Entrar no Telegram</translation>
    </message>
    <message>
        <source>Enter the telephone number associated with your Telegram account, including its international country code.</source>
        <translation>Digite o número de telefone associado à sua conta do Telegram, incluindo o código internacional do país.</translation>
    </message>
    <message>
        <source>Telephone number, including country code</source>
        <translation>Número de telefone, com o código do país</translation>
    </message>
    <message>
        <source>Enter your verification code</source>
        <translation>Digite seu código de verificação</translation>
    </message>
    <message>
        <source>Telegram sent a code to one of your existing Telegram sessions or by another supported method.</source>
        <translation>O Telegram enviou um código para uma das suas sessões ativas do Telegram ou por outro método compatível.</translation>
    </message>
    <message>
        <source>Telegram verification code</source>
        <translation>Código de verificação do Telegram</translation>
    </message>
    <message>
        <source>Two-step verification</source>
        <translation>Verificação em duas etapas</translation>
    </message>
    <message>
        <source>Your account uses an additional password. Enter it to complete sign-in.</source>
        <translation>Sua conta usa uma senha adicional. Digite-a para concluir o login.</translation>
    </message>
    <message>
        <source>Two-step verification password</source>
        <translation>Senha da verificação em duas etapas</translation>
    </message>
    <message>
        <source>Telegram is unavailable</source>
        <translation>O Telegram está indisponível</translation>
    </message>
    <message>
        <source>The app could not start its Telegram connection.</source>
        <translation>O app não conseguiu iniciar a conexão com o Telegram.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <extracomment>The two-step password&apos;s hint, as its owner wrote it.</extracomment>
        <translation>Dica: %1</translation>
    </message>
    <message>
        <source>Verification codes and passwords are sent directly to TDLib and are never saved by this app.</source>
        <translation>Códigos de verificação e senhas são enviados diretamente para a TDLib e nunca são salvos por este app.</translation>
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
        <translation>lida</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviada</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Você</translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Said of a message that was changed after it was sent.</extracomment>
        <translation>editada</translation>
    </message>
    <message>
        <source>%1 %2, yours</source>
        <extracomment>A reaction read aloud: %1 is its emoji, %2 how many reacted with it; you did too.</extracomment>
        <translation>%1 %2, incluindo você</translation>
    </message>
    <message>
        <source>Unread messages</source>
        <translation>Mensagens não lidas</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The button that opens a message&apos;s actions.</extracomment>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Forwarded from %1</source>
        <translation>Encaminhada de %1</translation>
    </message>
    <message>
        <source>Link preview: %1</source>
        <translation>Prévia do link: %1</translation>
    </message>
    <message>
        <source>edited  %1</source>
        <extracomment>An edited message&apos;s time; %1 is the time, such as 14:05.</extracomment>
        <translation>editada  %1</translation>
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
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>Message actions</source>
        <translation>Ações da mensagem</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>Reações</translation>
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
        <translation>Encaminhar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
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
        <translation>Nova conversa</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Buscar contatos</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contatos</translation>
    </message>
    <message>
        <source>Scroll contacts</source>
        <translation>Rolar contatos</translation>
    </message>
    <message>
        <source>Found by Telegram</source>
        <translation>Encontrados no Telegram</translation>
    </message>
    <message>
        <source>No contacts found</source>
        <translation>Nenhum contato encontrado</translation>
    </message>
    <message>
        <source>No contacts yet</source>
        <translation>Nenhum contato ainda</translation>
    </message>
    <message>
        <source>Remove %1 from your contacts?</source>
        <translation>Remover %1 dos seus contatos?</translation>
    </message>
    <message>
        <source>Delete contact</source>
        <translation>Apagar contato</translation>
    </message>
</context>
<context>
    <name>NewContactForms</name>
    <message>
        <source>Add contact</source>
        <translation>Adicionar contato</translation>
    </message>
    <message>
        <source>First name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Last name</source>
        <translation>Sobrenome</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de telefone</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>A noun: a private note about the new contact.</extracomment>
        <translation>Observação</translation>
    </message>
    <message>
        <source>Open username</source>
        <extracomment>A form&apos;s title: open a chat by someone&apos;s public username.</extracomment>
        <translation>Abrir por nome de usuário</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: the button that opens the chat with that username.</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Opening the chat</source>
        <translation>Abrindo a conversa</translation>
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
        <translation>Ir para a mensagem mais recente</translation>
    </message>
    <message numerus="yes">
        <source>↓ %n new</source>
        <extracomment>On the button under the transcript: how many messages arrived below, with an arrow pointing down to them.</extracomment>
        <translation>
            <numerusform>↓ %n nova</numerusform>
            <numerusform>↓ %n novas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <extracomment>The same button read aloud: how many messages arrived below.</extracomment>
        <translation>
            <numerusform>%n mensagem nova</numerusform>
            <numerusform>%n mensagens novas</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the first new message</source>
        <translation>Ir para a primeira mensagem nova</translation>
    </message>
</context>
<context>
    <name>PendingStrip</name>
    <message>
        <source>Files to send</source>
        <translation>Arquivos para enviar</translation>
    </message>
    <message>
        <source>Scroll files to send</source>
        <translation>Rolar arquivos para enviar</translation>
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
        <translation>Remover %1</translation>
    </message>
    <message>
        <source>Send as file</source>
        <translation>Enviar como arquivo</translation>
    </message>
    <message>
        <source>%1 is empty and can’t be sent.</source>
        <translation>%1 está vazio e não pode ser enviado.</translation>
    </message>
    <message>
        <source>%1 is a folder; choose the files in it.</source>
        <translation>%1 é uma pasta; escolha os arquivos dentro dela.</translation>
    </message>
    <message>
        <source>%1 is larger than 2 GB, more than Telegram takes.</source>
        <translation>%1 tem mais de 2 GB, acima do limite do Telegram.</translation>
    </message>
    <message>
        <source>%1 can’t be read.</source>
        <translation>Não é possível ler %1.</translation>
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
        <translation>Visualizador de fotos</translation>
    </message>
    <message>
        <source>Photo %1 of %2</source>
        <translation>Foto %1 de %2</translation>
    </message>
    <message>
        <source>Video %1 of %2</source>
        <translation>Vídeo %1 de %2</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous picture of the album.</extracomment>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next picture of the album.</extracomment>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A verb: save the picture to a folder.</extracomment>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>A verb: open the picture with its application.</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Anonymous poll</source>
        <translation>Enquete anônima</translation>
    </message>
    <message>
        <source>Poll</source>
        <translation>Enquete</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, closed</source>
        <translation>%1, votação encerrada</translation>
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
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Scroll preferences</source>
        <translation>Rolar preferências</translation>
    </message>
    <message>
        <source>Appearance</source>
        <extracomment>Titles of the preferences&apos; sections.</extracomment>
        <translation>Aparência</translation>
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
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Play sounds</source>
        <translation>Reproduzir sons</translation>
    </message>
    <message>
        <source>Sound pack</source>
        <translation>Pacote de sons</translation>
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
        <translation>Clássico</translation>
    </message>
    <message>
        <source>Playful</source>
        <translation>Divertido</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Mostrar notificações</translation>
    </message>
    <message>
        <source>Start Vost when I sign in to my computer</source>
        <translation>Iniciar o Vost quando eu entrar no computador</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>Change account</source>
        <extracomment>A verb: sign out and sign in to another account.</extracomment>
        <translation>Trocar de conta</translation>
    </message>
    <message>
        <source>Demo account: nothing leaves this computer</source>
        <translation>Conta de demonstração: nada sai deste computador</translation>
    </message>
    <message>
        <source>Vost %1</source>
        <extracomment>%1 is the version, such as 0.1.0.</extracomment>
        <translation>Vost %1</translation>
    </message>
    <message>
        <source>Sign out of this account and sign in to another?</source>
        <translation>Sair desta conta e entrar em outra?</translation>
    </message>
    <message>
        <source>Check spelling</source>
        <extracomment>Whether the composer underlines misspelt words.</extracomment>
        <translation>Verificar ortografia</translation>
    </message>
</context>
<context>
    <name>ReplyQuote</name>
    <message>
        <source>You</source>
        <translation>Você</translation>
    </message>
    <message>
        <source>Message not found</source>
        <translation>Mensagem não encontrada</translation>
    </message>
    <message>
        <source>Reply to %1: %2</source>
        <extracomment>A quoted message read aloud: %1 is its sender, %2 what it says.</extracomment>
        <translation>Em resposta a %1: %2</translation>
    </message>
    <message>
        <source>a message</source>
        <translation>uma mensagem</translation>
    </message>
</context>
<context>
    <name>ShortcutChoice</name>
    <message>
        <source>Press keys…</source>
        <extracomment>Shown on the shortcut&apos;s button while it waits for a key combination.</extracomment>
        <translation>Pressione as teclas…</translation>
    </message>
    <message>
        <source>None</source>
        <comment>shortcut</comment>
        <extracomment>On the shortcut&apos;s button when no shortcut is chosen.</extracomment>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Shortcut to open Vost</source>
        <translation>Atalho para abrir o Vost</translation>
    </message>
    <message>
        <source>Taken by another program</source>
        <translation>Em uso por outro programa</translation>
    </message>
    <message>
        <source>Not available on this desktop</source>
        <translation>Não disponível neste desktop</translation>
    </message>
    <message>
        <source>Not allowed by the desktop</source>
        <extracomment>The desktop was asked for the shortcut and did not give it.</extracomment>
        <translation>Não permitido pelo desktop</translation>
    </message>
</context>
<context>
    <name>SidebarToolbar</name>
    <message>
        <source>New chat</source>
        <translation>Nova conversa</translation>
    </message>
    <message>
        <source>New chat (Ctrl+N)</source>
        <translation>Nova conversa (Ctrl+N)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Preferences (Ctrl+,)</source>
        <translation>Preferências (Ctrl+,)</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message numerus="yes">
        <source>Vost, %n unread messages</source>
        <extracomment>The tray icon&apos;s accessible name.</extracomment>
        <translation>
            <numerusform>Vost, %n mensagem não lida</numerusform>
            <numerusform>Vost, %n mensagens não lidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for network…</source>
        <extracomment>The tray item&apos;s tool tip while the computer has no network connection</extracomment>
        <translation>Aguardando rede…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>The tray item&apos;s tool tip while the link to Telegram is being made</extracomment>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Updating…</source>
        <extracomment>The tray item&apos;s tool tip while what happened offline is being fetched</extracomment>
        <translation>Atualizando…</translation>
    </message>
</context>
<context>
    <name>StickerPicker</name>
    <message>
        <source>Sticker picker</source>
        <translation>Seletor de figurinhas</translation>
    </message>
    <message>
        <source>Recent</source>
        <extracomment>Tabs of the sticker picker: stickers sent lately, then installed, then popular ones.</extracomment>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Instaladas</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Em alta</translation>
    </message>
    <message>
        <source>Search stickers</source>
        <translation>Buscar figurinhas</translation>
    </message>
    <message>
        <source>Stickers</source>
        <translation>Figurinhas</translation>
    </message>
    <message>
        <source>Scroll stickers</source>
        <translation>Rolar figurinhas</translation>
    </message>
    <message>
        <source>Sticker %1</source>
        <translation>Figurinha %1</translation>
    </message>
    <message>
        <source>No stickers found</source>
        <translation>Nenhuma figurinha encontrada</translation>
    </message>
    <message>
        <source>No stickers here yet</source>
        <translation>Nenhuma figurinha aqui ainda</translation>
    </message>
    <message>
        <source>Loading stickers</source>
        <translation>Carregando figurinhas</translation>
    </message>
</context>
<context>
    <name>StickerStore</name>
    <message>
        <source>Unable to load stickers.</source>
        <translation>Não foi possível carregar as figurinhas.</translation>
    </message>
</context>
<context>
    <name>StickerView</name>
    <message>
        <source>Sticker %1</source>
        <translation>Figurinha %1</translation>
    </message>
</context>
<context>
    <name>TDLibRuntime</name>
    <message>
        <source>TDLib is not bundled in this build.</source>
        <translation>A TDLib não está incluída nesta versão.</translation>
    </message>
    <message>
        <source>TDLib could not be loaded: %1</source>
        <extracomment>%1 is the system loader&apos;s own message.</extracomment>
        <translation>Não foi possível carregar a TDLib: %1</translation>
    </message>
    <message>
        <source>TDLib is missing the required function %1.</source>
        <extracomment>%1 is the name of a function of TDLib&apos;s library, such as td_create_client_id.</extracomment>
        <translation>A função obrigatória %1 não foi encontrada na TDLib.</translation>
    </message>
</context>
<context>
    <name>TelegramLoginView</name>
    <message>
        <source>Sign in</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Login Information</source>
        <extracomment>The group of fields where the sign-in details are typed.</extracomment>
        <translation>Dados de login</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Use a different number</source>
        <translation>Usar outro número</translation>
    </message>
</context>
<context>
    <name>TelegramSession</name>
    <message>
        <source>Loading the bundled TDLib library…</source>
        <translation>Carregando a biblioteca TDLib incluída…</translation>
    </message>
    <message>
        <source>TDLib loaded; creating a client…</source>
        <translation>TDLib carregada; criando um cliente…</translation>
    </message>
    <message>
        <source>Client created; waiting for TDLib’s first event…</source>
        <translation>Cliente criado; aguardando o primeiro evento da TDLib…</translation>
    </message>
    <message>
        <source>Unable to refresh chats.</source>
        <translation>Não foi possível atualizar as conversas.</translation>
    </message>
    <message>
        <source>Telegram returned an unknown error.</source>
        <translation>O Telegram retornou um erro desconhecido.</translation>
    </message>
    <message>
        <source>You</source>
        <extracomment>The sender&apos;s name on one&apos;s own messages.</extracomment>
        <translation>Você</translation>
    </message>
    <message>
        <source>TDLib returned an unreadable response.</source>
        <translation>A TDLib retornou uma resposta ilegível.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Private conversation</source>
        <translation>Conversa privada</translation>
    </message>
</context>
<context>
    <name>TranscriptPlaceholder</name>
    <message>
        <source>No messages here yet.</source>
        <translation>Nenhuma mensagem aqui ainda.</translation>
    </message>
    <message>
        <source>Loading messages</source>
        <translation>Carregando mensagens</translation>
    </message>
</context>
<context>
    <name>UserStore</name>
    <message>
        <source>Telegram user</source>
        <translation>Usuário do Telegram</translation>
    </message>
    <message>
        <source>Typing…</source>
        <extracomment>The chat&apos;s subtitle while the other person types.</extracomment>
        <translation>Digitando…</translation>
    </message>
    <message>
        <source>%1 is typing…</source>
        <extracomment>A group&apos;s subtitle while a member types; %1 is the member&apos;s name.</extracomment>
        <translation>%1 está digitando…</translation>
    </message>
    <message>
        <source>Someone</source>
        <translation>Alguém</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
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
        <translation>Vídeo, %1</translation>
    </message>
</context>
<context>
    <name>VoicePlayer</name>
    <message>
        <source>Audio %1, %2</source>
        <translation>Áudio %1, %2</translation>
    </message>
    <message>
        <source>Voice message, %1</source>
        <translation>Mensagem de voz, %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>Verbs: the voice message&apos;s play button.</extracomment>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
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
        <translation>Um cliente compacto do Telegram para a bandeja do sistema.</translation>
    </message>
    <message>
        <source>Use the offline demo account.</source>
        <translation>Usar a conta de demonstração offline.</translation>
    </message>
    <message>
        <source>Another Vost is still closing or not answering. Start Vost again in a moment.</source>
        <translation>Outra instância do Vost ainda está fechando ou não responde. Abra o Vost novamente daqui a pouco.</translation>
    </message>
    <message>
        <source>Open Vost</source>
        <translation>Abrir o Vost</translation>
    </message>
    <message>
        <source>Quit Vost</source>
        <translation>Sair do Vost</translation>
    </message>
</context>
</TS>

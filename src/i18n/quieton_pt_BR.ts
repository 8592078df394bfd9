<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidade</translation>
    </message>
    <message>
        <source>Terms Of Use</source>
        <translation>Termos de uso</translation>
    </message>
</context>
<context>
    <name>AppUpdateAlert</name>
    <message>
        <source>New version</source>
        <translation>Nova versão</translation>
    </message>
    <message>
        <source>A new version of Quieton is now available for download, update now!</source>
        <translation>Uma nova versão do Quieton está disponível para download. Atualize agora!</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Atualizar agora</translation>
    </message>
</context>
<context>
    <name>AutoSettingSection</name>
    <message>
        <source>Auto setting startup</source>
        <translation>Opções automáticas ao iniciar</translation>
    </message>
    <message>
        <source>Auto Hide My Number</source>
        <translation>Sempre ocultar meu número</translation>
    </message>
    <message>
        <source>Auto Save To History</source>
        <translation>Sempre salvar no histórico</translation>
    </message>
    <message>
        <source>Auto Sort Contacts By:</source>
        <translation>Ordenar contatos automaticamente por:</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Sobrenome</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefone</translation>
    </message>
</context>
<context>
    <name>CallConfirmationDialog</name>
    <message>
        <source>Place this call?</source>
        <translation>Fazer esta ligação?</translation>
    </message>
    <message>
        <source>Number to call: %1</source>
        <translation>Número para ligar: %1</translation>
    </message>
    <message>
        <source>The number is dialled as shown, prefix included.</source>
        <translation>O número é discado exatamente como aparece, com o prefixo incluído.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Do not place the call</source>
        <translation>Não fazer a ligação</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Place the call to %1</source>
        <translation>Ligar para %1</translation>
    </message>
</context>
<context>
    <name>CallPrivacyDialog</name>
    <message>
        <source>Choose Call Privacy</source>
        <translation>Escolha a privacidade da ligação</translation>
    </message>
    <message>
        <source>Select whether you want the call to be private or not. Your choice here will determine whether your call details are visible to others.</source>
        <translation>Escolha se a ligação deve ser privada ou não. Sua escolha determina se os dados da sua ligação ficam visíveis para outras pessoas.</translation>
    </message>
    <message>
        <source>Private dialing</source>
        <translation>Ligação privada</translation>
    </message>
    <message>
        <source>Normal Dialing</source>
        <translation>Ligação normal</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ClipboardSharer</name>
    <message>
        <source>Link copied – paste it to share Quieton</source>
        <translation>Link copiado – cole-o para compartilhar o Quieton</translation>
    </message>
</context>
<context>
    <name>ContactsView</name>
    <message>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Sobrenome</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>Sort descending</source>
        <translation>Ordenar de forma decrescente</translation>
    </message>
    <message>
        <source>Sort ascending</source>
        <translation>Ordenar de forma crescente</translation>
    </message>
    <message>
        <source>To view contacts, enable it in settings.</source>
        <translation>Para ver os contatos, permita o acesso nas configurações.</translation>
    </message>
    <message>
        <source>No Contacts Found</source>
        <translation>Nenhum contato encontrado</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contatos</translation>
    </message>
    <message>
        <source>Contact list</source>
        <translation>Lista de contatos</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Total de contatos</translation>
    </message>
</context>
<context>
    <name>CountryListAlert</name>
    <message>
        <source>Select By Country</source>
        <translation>Selecionar por país</translation>
    </message>
    <message>
        <source>Prefixes may vary depending on the cellular provider. Please consult the official documentation of your cellular provider for accurate information. Additional charges may apply, please verify with your cellular provider.</source>
        <translation>Os prefixos podem variar de acordo com a operadora de celular. Consulte a documentação oficial da sua operadora para obter informações precisas. Podem ser cobradas tarifas adicionais; confirme com sua operadora.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DataSection</name>
    <message>
        <source>Data</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Reset Settings</source>
        <translation>Redefinir ajustes</translation>
    </message>
    <message>
        <source>Clear All (Include history calls)</source>
        <translation>Apagar tudo (inclusive o histórico de ligações)</translation>
    </message>
</context>
<context>
    <name>DesktopTelephony</name>
    <message>
        <source>The phone cannot call this number.</source>
        <translation>O telefone não pode ligar para este número.</translation>
    </message>
    <message>
        <source>No application on this computer places phone calls.</source>
        <translation>Nenhum aplicativo deste computador faz ligações telefônicas.</translation>
    </message>
    <message>
        <source>The desktop did not say which application places phone calls. Please try again.</source>
        <translation>A área de trabalho não informou qual aplicativo faz ligações telefônicas. Tente novamente.</translation>
    </message>
    <message>
        <source>The desktop could not hand the call to a phone application.</source>
        <translation>A área de trabalho não conseguiu passar a ligação para um aplicativo de telefone.</translation>
    </message>
</context>
<context>
    <name>DialErrorAlert</name>
    <message>
        <source>Unable to make the call. Please check the number or ensure your device supports calling.</source>
        <translation>Não foi possível fazer a ligação. Verifique o número ou confirme se o seu dispositivo permite fazer ligações.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>DialerView</name>
    <message>
        <source>asterisk</source>
        <translation>asterisco</translation>
    </message>
    <message>
        <source>pound</source>
        <translation>cerquilha</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Hidden Number</source>
        <translation>Número oculto</translation>
    </message>
    <message>
        <source>Save to History</source>
        <translation>Salvar no histórico</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Hold to clear the number, or press Escape</source>
        <translation>Mantenha pressionado para apagar o número, ou pressione Esc</translation>
    </message>
</context>
<context>
    <name>HelpSection</name>
    <message>
        <source>Help and information</source>
        <translation>Ajuda e informações</translation>
    </message>
    <message>
        <source>App version</source>
        <translation>Versão do app</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Atualizar agora</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guia de uso do Quieton</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>Ainda não lido</translation>
    </message>
    <message>
        <source>Share with Friends</source>
        <translation>Compartilhar com amigos</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar feedback</translation>
    </message>
    <message>
        <source>Change Language</source>
        <translation>Alterar idioma</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Número oculto</translation>
    </message>
    <message>
        <source>Normal Dialing</source>
        <translation>Ligação normal</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Excluir %1</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>No history calls to show</source>
        <translation>Nenhuma ligação no histórico</translation>
    </message>
    <message>
        <source>Remember: don&apos;t forget to switch on &quot;Auto Save to History&quot; in settings to save your calls.</source>
        <translation>Lembre-se: ative &quot;Sempre salvar no histórico&quot; nos ajustes para salvar suas ligações.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Call history</source>
        <translation>Histórico de chamadas</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Total de contatos</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Dialer</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contatos</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>ModemTelephony</name>
    <message>
        <source>The phone cannot call this number.</source>
        <translation>O telefone não pode ligar para este número.</translation>
    </message>
    <message>
        <source>No modem is ready to place calls.</source>
        <translation>Nenhum modem está pronto para fazer ligações.</translation>
    </message>
    <message>
        <source>The call could not be placed: %1</source>
        <translation>Não foi possível fazer a ligação: %1</translation>
    </message>
</context>
<context>
    <name>OnboardingPage</name>
    <message>
        <source>Additional costs may apply, Please verify with your cellular carrier.</source>
        <translation>Podem ser cobradas tarifas adicionais. Confirme com sua operadora.</translation>
    </message>
</context>
<context>
    <name>PrefixChoiceAlert</name>
    <message>
        <source>There are several prefixes that can private your number. Please choose one.</source>
        <translation>Há vários prefixos que podem ocultar seu número. Escolha um.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PrefixEditor</name>
    <message>
        <source>Enter your Prefix</source>
        <translation>Digite seu prefixo</translation>
    </message>
    <message>
        <source>Prefix Cannot Be Empty needs at least 2 characters and without spaces</source>
        <translation>O prefixo não pode ficar vazio: precisa ter pelo menos 2 caracteres e nenhum espaço</translation>
    </message>
    <message>
        <source>Prefixes can vary among different mobile providers. Check with your mobile provider for the prefix for private dialing. Additional costs may apply. Please verify with your cellular carrier.</source>
        <translation>Os prefixos podem variar entre as operadoras de celular. Consulte sua operadora sobre o prefixo para ligações privadas. Podem ser cobradas tarifas adicionais. Confirme com sua operadora.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Edit Manually</source>
        <translation>Editar manualmente</translation>
    </message>
</context>
<context>
    <name>PrefixSection</name>
    <message>
        <source>Private Call Setting</source>
        <translation>Ajustes de ligações privadas</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>Prefixo:</translation>
    </message>
    <message>
        <source>Edit Manually</source>
        <translation>Editar manualmente</translation>
    </message>
    <message>
        <source>Edit by country</source>
        <translation>Escolher por país</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SendFeedBackView</name>
    <message>
        <source>Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience.</source>
        <translation>Sua opinião é importante! Deixe uma avaliação, sugira recursos ou relate problemas técnicos para nos ajudar a melhorar sua experiência.</translation>
    </message>
    <message>
        <source>Leave a Feedback</source>
        <translation>Deixar um feedback</translation>
    </message>
    <message>
        <source>Suggest a Feature</source>
        <translation>Sugerir um recurso</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Relatar um problema</translation>
    </message>
    <message>
        <source>Share with Friend</source>
        <translation>Compartilhar com um amigo</translation>
    </message>
</context>
<context>
    <name>Service</name>
    <message>
        <source>%1 was not called: first answer the call waiting on screen.</source>
        <translation>%1 não foi chamado: primeiro responda à pergunta sobre a ligação que está na tela.</translation>
    </message>
    <message>
        <source>The call could not be placed.</source>
        <translation>Não foi possível fazer a ligação.</translation>
    </message>
    <message>
        <source>Check out this cool app! </source>
        <translation>Confira este app incrível! </translation>
    </message>
</context>
<context>
    <name>SettingConfirmAlert</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SettingCover</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>SettingView</name>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guia de uso do Quieton</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar feedback</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Are you sure you want to reset settings?</source>
        <translation>Tem certeza de que deseja redefinir os ajustes?</translation>
    </message>
    <message>
        <source>This action will reset your settings. Without delete you history calls.</source>
        <translation>Esta ação redefinirá seus ajustes, sem apagar seu histórico de ligações.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Are you sure you want to Clear All Data?</source>
        <translation>Tem certeza de que deseja apagar todos os dados?</translation>
    </message>
    <message>
        <source>This action will reset you setting and delete all history data</source>
        <translation>Esta ação redefinirá seus ajustes e apagará todo o histórico de ligações.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Apagar tudo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>SettingViewModel</name>
    <message>
        <source>United States</source>
        <translation>Estados Unidos</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canadá</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Reino Unido</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Austrália</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Áustria</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irlanda</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Alemanha</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japão</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Hungria</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>África do Sul</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasil</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>República Tcheca</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Países Baixos</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Nova Zelândia</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Noruega</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polônia</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Romênia</translation>
    </message>
    <message>
        <source>South Korea</source>
        <translation>Coreia do Sul</translation>
    </message>
    <message>
        <source>Hong Kong</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ucrânia</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlândia</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>México</translation>
    </message>
    <message>
        <source>China</source>
        <translation>China</translation>
    </message>
    <message>
        <source>All Other Countries</source>
        <translation>Todos os outros países</translation>
    </message>
    <message>
        <source>%1 - %2 - [%3]</source>
        <translation>%1 - %2 - [%3]</translation>
    </message>
</context>
<context>
    <name>SheetBackButton</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>UserGuideForQuietonView</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guia de uso do Quieton</translation>
    </message>
    <message>
        <source>Our app facilitates anonymous calls by allowing you to add a prefix to the number you dial.</source>
        <translation>Nosso app facilita ligações anônimas ao permitir que você adicione um prefixo ao número que disca.</translation>
    </message>
    <message>
        <source>For example, if you dial 123-456-789 and the prefix is #31#, the app will dial #31#123-456-789.</source>
        <translation>Por exemplo, se você discar 123-456-789 e o prefixo for #31#, o app discará #31#123-456-789.</translation>
    </message>
    <message>
        <source>However, the effectiveness of this feature depends on your cellular service provider. You may need to inquire with them to determine which prefix you should use to make a private call.</source>
        <translation>No entanto, a eficácia desse recurso depende da sua operadora de celular. Talvez seja preciso consultá-la para saber qual prefixo usar para fazer uma ligação privada.</translation>
    </message>
    <message>
        <source>You have the option to manually enter this prefix or select from a list provided by us. Please note that the prefix provided by us may not work universally and could vary among different mobile providers. Therefore, it&apos;s essential to verify the correct prefix with your mobile provider for private dialing.</source>
        <translation>Você pode digitar esse prefixo manualmente ou escolhê-lo em uma lista fornecida por nós. Observe que o prefixo que fornecemos pode não funcionar em todos os casos e pode variar entre as operadoras de celular. Por isso, é essencial confirmar com sua operadora o prefixo correto para ligações privadas.</translation>
    </message>
    <message>
        <source>Additionally, be aware that there may be additional costs associated with this feature. Always verify with your cellular carrier for accurate information.</source>
        <translation>Além disso, saiba que pode haver custos adicionais associados a esse recurso. Sempre confirme com sua operadora para obter informações precisas.</translation>
    </message>
</context>
<context>
    <name>WelcomeView</name>
    <message>
        <source>Welcome</source>
        <translation>Bem-vindo</translation>
    </message>
    <message>
        <source>Make calls without revealing your number.</source>
        <translation>Faça ligações sem revelar seu número.</translation>
    </message>
    <message>
        <source>With Quieton, you can easily dial any number privately using a custom prefix of your choice.</source>
        <translation>Com o Quieton, você liga para qualquer número de forma privada, usando o prefixo que preferir.</translation>
    </message>
    <message>
        <source>Your identity stays hidden, giving you control over your privacy.</source>
        <translation>Sua identidade fica oculta, e você mantém o controle da sua privacidade.</translation>
    </message>
    <message>
        <source>Contacts Integration</source>
        <translation>Integração com os contatos</translation>
    </message>
    <message>
        <source>Seamlessly make private calls from your contacts.</source>
        <translation>Faça ligações privadas direto dos seus contatos.</translation>
    </message>
    <message>
        <source>Quieton allows you to select numbers and decide whether to call anonymously.</source>
        <translation>O Quieton permite escolher números e decidir se a ligação será anônima.</translation>
    </message>
    <message>
        <source>No more toggling settings – it&apos;s all at your fingertips.</source>
        <translation>Chega de ficar mudando ajustes: está tudo na ponta dos dedos.</translation>
    </message>
    <message>
        <source>Call history management</source>
        <translation>Gerenciamento do histórico de ligações</translation>
    </message>
    <message>
        <source>Take charge of your call history.</source>
        <translation>Assuma o controle do seu histórico de ligações.</translation>
    </message>
    <message>
        <source>Quieton manages your calls, letting you choose which Calls are saved in-app.</source>
        <translation>O Quieton gerencia suas ligações e deixa você escolher quais ficam salvas no app.</translation>
    </message>
    <message>
        <source>You&apos;re in control of your call records, making sure your privacy preferences are met.</source>
        <translation>Você controla seus registros de ligações, de acordo com suas preferências de privacidade.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Private calls: dial with your number withheld.</source>
        <translation>Chamadas privadas: disque com seu número oculto.</translation>
    </message>
    <message>
        <source>A quieton: link to open.</source>
        <translation>Um link quieton: para abrir.</translation>
    </message>
</context>
</TS>

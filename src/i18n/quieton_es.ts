<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Terms Of Use</source>
        <translation>Condiciones de uso</translation>
    </message>
</context>
<context>
    <name>AppUpdateAlert</name>
    <message>
        <source>New version</source>
        <translation>Nueva versión</translation>
    </message>
    <message>
        <source>A new version of Quieton is now available for download, update now!</source>
        <translation>Ya puedes descargar una nueva versión de Quieton. ¡Actualiza ahora!</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Actualizar ahora</translation>
    </message>
</context>
<context>
    <name>AutoSettingSection</name>
    <message>
        <source>Auto setting startup</source>
        <translation>Ajustes automáticos al iniciar</translation>
    </message>
    <message>
        <source>Auto Hide My Number</source>
        <translation>Ocultar siempre mi número</translation>
    </message>
    <message>
        <source>Auto Save To History</source>
        <translation>Guardar siempre en el historial</translation>
    </message>
    <message>
        <source>Auto Sort Contacts By:</source>
        <translation>Ordenar contactos automáticamente por:</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellido</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
</context>
<context>
    <name>CallConfirmationDialog</name>
    <message>
        <source>Place this call?</source>
        <translation>¿Realizar esta llamada?</translation>
    </message>
    <message>
        <source>Number to call: %1</source>
        <translation>Número al que llamar: %1</translation>
    </message>
    <message>
        <source>The number is dialled as shown, prefix included.</source>
        <translation>El número se marca tal como se muestra, con el prefijo incluido.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Do not place the call</source>
        <translation>No realizar la llamada</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Place the call to %1</source>
        <translation>Llamar al %1</translation>
    </message>
</context>
<context>
    <name>CallPrivacyDialog</name>
    <message>
        <source>Choose Call Privacy</source>
        <translation>Elige la privacidad de la llamada</translation>
    </message>
    <message>
        <source>Select whether you want the call to be private or not. Your choice here will determine whether your call details are visible to others.</source>
        <translation>Elige si quieres que la llamada sea privada o no. Tu elección determinará si los datos de tu llamada son visibles para los demás.</translation>
    </message>
    <message>
        <source>Private dialing</source>
        <translation>Llamada privada</translation>
    </message>
    <message>
        <source>Normal Dialing</source>
        <translation>Llamada normal</translation>
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
        <translation>Enlace copiado: pégalo para compartir Quieton</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellido</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Sort descending</source>
        <translation>Ordenar de forma descendente</translation>
    </message>
    <message>
        <source>Sort ascending</source>
        <translation>Ordenar de forma ascendente</translation>
    </message>
    <message>
        <source>To view contacts, enable it in settings.</source>
        <translation>Para ver los contactos, permite el acceso en Ajustes.</translation>
    </message>
    <message>
        <source>No Contacts Found</source>
        <translation>No se encontraron contactos</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>Contact list</source>
        <translation>Lista de contactos</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Total de contactos</translation>
    </message>
</context>
<context>
    <name>CountryListAlert</name>
    <message>
        <source>Select By Country</source>
        <translation>Seleccionar por país</translation>
    </message>
    <message>
        <source>Prefixes may vary depending on the cellular provider. Please consult the official documentation of your cellular provider for accurate information. Additional charges may apply, please verify with your cellular provider.</source>
        <translation>Los prefijos pueden variar según el operador móvil. Consulta la documentación oficial de tu operador para obtener información precisa. Pueden aplicarse cargos adicionales; compruébalo con tu operador.</translation>
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
        <translation>Datos</translation>
    </message>
    <message>
        <source>Reset Settings</source>
        <translation>Restablecer ajustes</translation>
    </message>
    <message>
        <source>Clear All (Include history calls)</source>
        <translation>Borrar todo (incluido el historial de llamadas)</translation>
    </message>
</context>
<context>
    <name>DesktopTelephony</name>
    <message>
        <source>The phone cannot call this number.</source>
        <translation>El teléfono no puede llamar a este número.</translation>
    </message>
    <message>
        <source>No application on this computer places phone calls.</source>
        <translation>Ninguna aplicación de este equipo realiza llamadas telefónicas.</translation>
    </message>
    <message>
        <source>The desktop did not say which application places phone calls. Please try again.</source>
        <translation>El escritorio no indicó qué aplicación realiza las llamadas telefónicas. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>The desktop could not hand the call to a phone application.</source>
        <translation>El escritorio no pudo pasar la llamada a una aplicación de teléfono.</translation>
    </message>
</context>
<context>
    <name>DialErrorAlert</name>
    <message>
        <source>Unable to make the call. Please check the number or ensure your device supports calling.</source>
        <translation>No se puede realizar la llamada. Comprueba el número o asegúrate de que tu dispositivo admite llamadas.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>almohadilla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Hidden Number</source>
        <translation>Número oculto</translation>
    </message>
    <message>
        <source>Save to History</source>
        <translation>Guardar en el historial</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamar</translation>
    </message>
    <message>
        <source>Hold to clear the number, or press Escape</source>
        <translation>Mantén pulsado para borrar el número, o pulsa Escape</translation>
    </message>
</context>
<context>
    <name>HelpSection</name>
    <message>
        <source>Help and information</source>
        <translation>Ayuda e información</translation>
    </message>
    <message>
        <source>App version</source>
        <translation>Versión de la app</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guía de uso de Quieton</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>Aún no leída</translation>
    </message>
    <message>
        <source>Share with Friends</source>
        <translation>Compartir con amigos</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Change Language</source>
        <translation>Cambiar idioma</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
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
        <translation>Llamada normal</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar %1</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>No history calls to show</source>
        <translation>No hay llamadas en el historial</translation>
    </message>
    <message>
        <source>Remember: don&apos;t forget to switch on &quot;Auto Save to History&quot; in settings to save your calls.</source>
        <translation>Recuerda: activa «Guardar siempre en el historial» en Ajustes para guardar tus llamadas.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Call history</source>
        <translation>Historial de llamadas</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Total de contactos</translation>
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
        <translation>Contactos</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
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
        <translation>El teléfono no puede llamar a este número.</translation>
    </message>
    <message>
        <source>No modem is ready to place calls.</source>
        <translation>Ningún módem está listo para realizar llamadas.</translation>
    </message>
    <message>
        <source>The call could not be placed: %1</source>
        <translation>No se pudo realizar la llamada: %1</translation>
    </message>
</context>
<context>
    <name>OnboardingPage</name>
    <message>
        <source>Additional costs may apply, Please verify with your cellular carrier.</source>
        <translation>Pueden aplicarse cargos adicionales. Consúltalo con tu operador.</translation>
    </message>
</context>
<context>
    <name>PrefixChoiceAlert</name>
    <message>
        <source>There are several prefixes that can private your number. Please choose one.</source>
        <translation>Hay varios prefijos que pueden ocultar tu número. Elige uno.</translation>
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
        <translation>Introduce tu prefijo</translation>
    </message>
    <message>
        <source>Prefix Cannot Be Empty needs at least 2 characters and without spaces</source>
        <translation>El prefijo no puede estar vacío: necesita al menos 2 caracteres y ningún espacio</translation>
    </message>
    <message>
        <source>Prefixes can vary among different mobile providers. Check with your mobile provider for the prefix for private dialing. Additional costs may apply. Please verify with your cellular carrier.</source>
        <translation>Los prefijos pueden variar según el operador móvil. Consulta con tu operador el prefijo para las llamadas privadas. Pueden aplicarse cargos adicionales. Compruébalo con tu operador.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>Ajustes de llamadas privadas</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>Prefijo:</translation>
    </message>
    <message>
        <source>Edit Manually</source>
        <translation>Editar manualmente</translation>
    </message>
    <message>
        <source>Edit by country</source>
        <translation>Elegir por país</translation>
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
        <translation>¡Tu opinión importa! Deja una reseña, sugiere funciones o informa de problemas técnicos para ayudarnos a mejorar tu experiencia.</translation>
    </message>
    <message>
        <source>Leave a Feedback</source>
        <translation>Dejar una opinión</translation>
    </message>
    <message>
        <source>Suggest a Feature</source>
        <translation>Sugerir una función</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Informar de un problema</translation>
    </message>
    <message>
        <source>Share with Friend</source>
        <translation>Compartir con un amigo</translation>
    </message>
</context>
<context>
    <name>Service</name>
    <message>
        <source>%1 was not called: first answer the call waiting on screen.</source>
        <translation>No se llamó al %1: primero responde a la pregunta sobre la llamada que aparece en pantalla.</translation>
    </message>
    <message>
        <source>The call could not be placed.</source>
        <translation>No se pudo realizar la llamada.</translation>
    </message>
    <message>
        <source>Check out this cool app! </source>
        <translation>¡Mira esta app genial! </translation>
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
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>SettingView</name>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guía de uso de Quieton</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Are you sure you want to reset settings?</source>
        <translation>¿Seguro que quieres restablecer los ajustes?</translation>
    </message>
    <message>
        <source>This action will reset your settings. Without delete you history calls.</source>
        <translation>Esta acción restablecerá tus ajustes, sin borrar tu historial de llamadas.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Are you sure you want to Clear All Data?</source>
        <translation>¿Seguro que quieres borrar todos los datos?</translation>
    </message>
    <message>
        <source>This action will reset you setting and delete all history data</source>
        <translation>Esta acción restablecerá tus ajustes y borrará todo el historial de llamadas.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Borrar todo</translation>
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
        <translation>Australia</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Austria</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irlanda</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Alemania</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japón</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Hungría</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Sudáfrica</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasil</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>República Checa</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Países Bajos</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Nueva Zelanda</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Noruega</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polonia</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumania</translation>
    </message>
    <message>
        <source>South Korea</source>
        <translation>Corea del Sur</translation>
    </message>
    <message>
        <source>Hong Kong</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ucrania</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlandia</translation>
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
        <translation>Todos los demás países</translation>
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
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>UserGuideForQuietonView</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guía de uso de Quieton</translation>
    </message>
    <message>
        <source>Our app facilitates anonymous calls by allowing you to add a prefix to the number you dial.</source>
        <translation>Nuestra app facilita las llamadas anónimas al permitirte añadir un prefijo al número que marcas.</translation>
    </message>
    <message>
        <source>For example, if you dial 123-456-789 and the prefix is #31#, the app will dial #31#123-456-789.</source>
        <translation>Por ejemplo, si marcas el 123-456-789 y el prefijo es #31#, la app marcará el #31#123-456-789.</translation>
    </message>
    <message>
        <source>However, the effectiveness of this feature depends on your cellular service provider. You may need to inquire with them to determine which prefix you should use to make a private call.</source>
        <translation>Sin embargo, la eficacia de esta función depende de tu operador móvil. Es posible que tengas que consultarle qué prefijo debes usar para hacer una llamada privada.</translation>
    </message>
    <message>
        <source>You have the option to manually enter this prefix or select from a list provided by us. Please note that the prefix provided by us may not work universally and could vary among different mobile providers. Therefore, it&apos;s essential to verify the correct prefix with your mobile provider for private dialing.</source>
        <translation>Puedes introducir este prefijo manualmente o elegirlo de una lista que te ofrecemos. Ten en cuenta que el prefijo que te proporcionamos puede no funcionar en todas partes y variar según el operador móvil. Por eso, es fundamental que confirmes con tu operador el prefijo correcto para las llamadas privadas.</translation>
    </message>
    <message>
        <source>Additionally, be aware that there may be additional costs associated with this feature. Always verify with your cellular carrier for accurate information.</source>
        <translation>Además, ten en cuenta que esta función puede tener cargos adicionales. Consulta siempre a tu operador para obtener información precisa.</translation>
    </message>
</context>
<context>
    <name>WelcomeView</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenido</translation>
    </message>
    <message>
        <source>Make calls without revealing your number.</source>
        <translation>Llama sin revelar tu número.</translation>
    </message>
    <message>
        <source>With Quieton, you can easily dial any number privately using a custom prefix of your choice.</source>
        <translation>Con Quieton puedes llamar fácilmente a cualquier número de forma privada con el prefijo que elijas.</translation>
    </message>
    <message>
        <source>Your identity stays hidden, giving you control over your privacy.</source>
        <translation>Tu identidad permanece oculta y tú controlas tu privacidad.</translation>
    </message>
    <message>
        <source>Contacts Integration</source>
        <translation>Integración con contactos</translation>
    </message>
    <message>
        <source>Seamlessly make private calls from your contacts.</source>
        <translation>Haz llamadas privadas directamente desde tus contactos.</translation>
    </message>
    <message>
        <source>Quieton allows you to select numbers and decide whether to call anonymously.</source>
        <translation>Quieton te permite elegir números y decidir si llamas de forma anónima.</translation>
    </message>
    <message>
        <source>No more toggling settings – it&apos;s all at your fingertips.</source>
        <translation>Olvídate de cambiar ajustes: todo está al alcance de tu mano.</translation>
    </message>
    <message>
        <source>Call history management</source>
        <translation>Gestión del historial de llamadas</translation>
    </message>
    <message>
        <source>Take charge of your call history.</source>
        <translation>Toma el control de tu historial de llamadas.</translation>
    </message>
    <message>
        <source>Quieton manages your calls, letting you choose which Calls are saved in-app.</source>
        <translation>Quieton gestiona tus llamadas y te deja elegir cuáles se guardan en la app.</translation>
    </message>
    <message>
        <source>You&apos;re in control of your call records, making sure your privacy preferences are met.</source>
        <translation>Tú decides sobre tus registros de llamadas, según tus preferencias de privacidad.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
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
        <translation>Llamadas privadas: marca con tu número oculto.</translation>
    </message>
    <message>
        <source>A quieton: link to open.</source>
        <translation>Un enlace quieton: que abrir.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Terms Of Use</source>
        <translation>Conditions d&apos;utilisation</translation>
    </message>
</context>
<context>
    <name>AppUpdateAlert</name>
    <message>
        <source>New version</source>
        <translation>Nouvelle version</translation>
    </message>
    <message>
        <source>A new version of Quieton is now available for download, update now!</source>
        <translation>Une nouvelle version de Quieton est disponible au téléchargement : mettez à jour dès maintenant !</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Mettre à jour</translation>
    </message>
</context>
<context>
    <name>AutoSettingSection</name>
    <message>
        <source>Auto setting startup</source>
        <translation>Options automatiques au démarrage</translation>
    </message>
    <message>
        <source>Auto Hide My Number</source>
        <translation>Toujours masquer mon numéro</translation>
    </message>
    <message>
        <source>Auto Save To History</source>
        <translation>Toujours enregistrer les appels</translation>
    </message>
    <message>
        <source>Auto Sort Contacts By:</source>
        <translation>Trier automatiquement les contacts par :</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Téléphone</translation>
    </message>
</context>
<context>
    <name>CallConfirmationDialog</name>
    <message>
        <source>Place this call?</source>
        <translation>Passer cet appel ?</translation>
    </message>
    <message>
        <source>Number to call: %1</source>
        <translation>Numéro à appeler : %1</translation>
    </message>
    <message>
        <source>The number is dialled as shown, prefix included.</source>
        <translation>Le numéro est composé tel qu&apos;il est affiché, préfixe compris.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Do not place the call</source>
        <translation>Ne pas passer l&apos;appel</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appeler</translation>
    </message>
    <message>
        <source>Place the call to %1</source>
        <translation>Appeler le %1</translation>
    </message>
</context>
<context>
    <name>CallPrivacyDialog</name>
    <message>
        <source>Choose Call Privacy</source>
        <translation>Confidentialité de l&apos;appel</translation>
    </message>
    <message>
        <source>Select whether you want the call to be private or not. Your choice here will determine whether your call details are visible to others.</source>
        <translation>Indiquez si l&apos;appel doit être privé ou non. Ce choix détermine si les informations de votre appel sont visibles par les autres.</translation>
    </message>
    <message>
        <source>Private dialing</source>
        <translation>Appel privé</translation>
    </message>
    <message>
        <source>Normal Dialing</source>
        <translation>Appel normal</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ClipboardSharer</name>
    <message>
        <source>Link copied – paste it to share Quieton</source>
        <translation>Lien copié – collez-le pour partager Quieton</translation>
    </message>
</context>
<context>
    <name>ContactsView</name>
    <message>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Sort descending</source>
        <translation>Trier par ordre décroissant</translation>
    </message>
    <message>
        <source>Sort ascending</source>
        <translation>Trier par ordre croissant</translation>
    </message>
    <message>
        <source>To view contacts, enable it in settings.</source>
        <translation>Pour voir vos contacts, autorisez l&apos;accès dans les paramètres.</translation>
    </message>
    <message>
        <source>No Contacts Found</source>
        <translation>Aucun contact trouvé</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>Contact list</source>
        <translation>Liste des contacts</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Total des contacts</translation>
    </message>
</context>
<context>
    <name>CountryListAlert</name>
    <message>
        <source>Select By Country</source>
        <translation>Choisir un pays</translation>
    </message>
    <message>
        <source>Prefixes may vary depending on the cellular provider. Please consult the official documentation of your cellular provider for accurate information. Additional charges may apply, please verify with your cellular provider.</source>
        <translation>Les préfixes peuvent varier selon l&apos;opérateur mobile. Consultez la documentation officielle de votre opérateur pour obtenir des informations exactes. Des frais supplémentaires peuvent s&apos;appliquer ; vérifiez auprès de votre opérateur.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DataSection</name>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Reset Settings</source>
        <translation>Réinitialiser les réglages</translation>
    </message>
    <message>
        <source>Clear All (Include history calls)</source>
        <translation>Tout effacer (historique des appels compris)</translation>
    </message>
</context>
<context>
    <name>DesktopTelephony</name>
    <message>
        <source>The phone cannot call this number.</source>
        <translation>Le téléphone ne peut pas appeler ce numéro.</translation>
    </message>
    <message>
        <source>No application on this computer places phone calls.</source>
        <translation>Aucune application de cet ordinateur ne passe d&apos;appels téléphoniques.</translation>
    </message>
    <message>
        <source>The desktop did not say which application places phone calls. Please try again.</source>
        <translation>Le bureau n&apos;a pas indiqué quelle application passe les appels téléphoniques. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The desktop could not hand the call to a phone application.</source>
        <translation>Le bureau n&apos;a pas pu transmettre l&apos;appel à une application de téléphonie.</translation>
    </message>
</context>
<context>
    <name>DialErrorAlert</name>
    <message>
        <source>Unable to make the call. Please check the number or ensure your device supports calling.</source>
        <translation>Impossible de passer l&apos;appel. Vérifiez le numéro ou assurez-vous que votre appareil permet d&apos;appeler.</translation>
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
        <translation>étoile</translation>
    </message>
    <message>
        <source>pound</source>
        <translation>dièse</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Hidden Number</source>
        <translation>Numéro masqué</translation>
    </message>
    <message>
        <source>Save to History</source>
        <translation>Enregistrer dans l&apos;historique</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appeler</translation>
    </message>
    <message>
        <source>Hold to clear the number, or press Escape</source>
        <translation>Maintenir appuyé pour effacer le numéro, ou appuyer sur Échap</translation>
    </message>
</context>
<context>
    <name>HelpSection</name>
    <message>
        <source>Help and information</source>
        <translation>Aide et informations</translation>
    </message>
    <message>
        <source>App version</source>
        <translation>Version de l&apos;app</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guide d&apos;utilisation de Quieton</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>Pas encore lu</translation>
    </message>
    <message>
        <source>Share with Friends</source>
        <translation>Partager avec des amis</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer un avis</translation>
    </message>
    <message>
        <source>Change Language</source>
        <translation>Changer de langue</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Numéro masqué</translation>
    </message>
    <message>
        <source>Normal Dialing</source>
        <translation>Appel normal</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>No history calls to show</source>
        <translation>Aucun appel dans l&apos;historique</translation>
    </message>
    <message>
        <source>Remember: don&apos;t forget to switch on &quot;Auto Save to History&quot; in settings to save your calls.</source>
        <translation>Pensez à activer « Toujours enregistrer les appels » dans les réglages pour conserver vos appels.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Call history</source>
        <translation>Historique des appels</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Total des contacts</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Dialer</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>ModemTelephony</name>
    <message>
        <source>The phone cannot call this number.</source>
        <translation>Le téléphone ne peut pas appeler ce numéro.</translation>
    </message>
    <message>
        <source>No modem is ready to place calls.</source>
        <translation>Aucun modem n&apos;est prêt à passer des appels.</translation>
    </message>
    <message>
        <source>The call could not be placed: %1</source>
        <translation>L&apos;appel n&apos;a pas pu être passé : %1</translation>
    </message>
</context>
<context>
    <name>OnboardingPage</name>
    <message>
        <source>Additional costs may apply, Please verify with your cellular carrier.</source>
        <translation>Des frais supplémentaires peuvent s&apos;appliquer. Vérifiez auprès de votre opérateur.</translation>
    </message>
</context>
<context>
    <name>PrefixChoiceAlert</name>
    <message>
        <source>There are several prefixes that can private your number. Please choose one.</source>
        <translation>Plusieurs préfixes permettent de masquer votre numéro. Veuillez en choisir un.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PrefixEditor</name>
    <message>
        <source>Enter your Prefix</source>
        <translation>Saisissez votre préfixe</translation>
    </message>
    <message>
        <source>Prefix Cannot Be Empty needs at least 2 characters and without spaces</source>
        <translation>Le préfixe ne peut pas être vide : au moins 2 caractères, sans espaces</translation>
    </message>
    <message>
        <source>Prefixes can vary among different mobile providers. Check with your mobile provider for the prefix for private dialing. Additional costs may apply. Please verify with your cellular carrier.</source>
        <translation>Les préfixes peuvent varier d&apos;un opérateur mobile à l&apos;autre. Renseignez-vous auprès de votre opérateur sur le préfixe à utiliser pour les appels privés. Des frais supplémentaires peuvent s&apos;appliquer. Vérifiez auprès de votre opérateur.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Edit Manually</source>
        <translation>Modifier manuellement</translation>
    </message>
</context>
<context>
    <name>PrefixSection</name>
    <message>
        <source>Private Call Setting</source>
        <translation>Réglages des appels privés</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>Préfixe :</translation>
    </message>
    <message>
        <source>Edit Manually</source>
        <translation>Modifier manuellement</translation>
    </message>
    <message>
        <source>Edit by country</source>
        <translation>Choisir par pays</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SendFeedBackView</name>
    <message>
        <source>Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience.</source>
        <translation>Votre avis compte ! Laissez un commentaire, suggérez des fonctionnalités ou signalez des problèmes techniques pour nous aider à améliorer votre expérience.</translation>
    </message>
    <message>
        <source>Leave a Feedback</source>
        <translation>Donner votre avis</translation>
    </message>
    <message>
        <source>Suggest a Feature</source>
        <translation>Suggérer une fonctionnalité</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>Share with Friend</source>
        <translation>Partager avec un ami</translation>
    </message>
</context>
<context>
    <name>Service</name>
    <message>
        <source>%1 was not called: first answer the call waiting on screen.</source>
        <translation>%1 n&apos;a pas été appelé : répondez d&apos;abord à la question sur l&apos;appel affichée à l&apos;écran.</translation>
    </message>
    <message>
        <source>The call could not be placed.</source>
        <translation>L&apos;appel n&apos;a pas pu être passé.</translation>
    </message>
    <message>
        <source>Check out this cool app! </source>
        <translation>Découvre cette super appli ! </translation>
    </message>
</context>
<context>
    <name>SettingConfirmAlert</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SettingCover</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>SettingView</name>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guide d&apos;utilisation de Quieton</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer un avis</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Are you sure you want to reset settings?</source>
        <translation>Voulez-vous vraiment réinitialiser les réglages ?</translation>
    </message>
    <message>
        <source>This action will reset your settings. Without delete you history calls.</source>
        <translation>Cette action réinitialise vos réglages, sans supprimer votre historique d&apos;appels.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Are you sure you want to Clear All Data?</source>
        <translation>Voulez-vous vraiment effacer toutes les données ?</translation>
    </message>
    <message>
        <source>This action will reset you setting and delete all history data</source>
        <translation>Cette action réinitialise vos réglages et supprime tout l&apos;historique des appels.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>SettingViewModel</name>
    <message>
        <source>United States</source>
        <translation>États-Unis</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canada</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Royaume-Uni</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Australie</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Autriche</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irlande</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Allemagne</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japon</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Hongrie</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Afrique du Sud</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brésil</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>République tchèque</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Pays-Bas</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Nouvelle-Zélande</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norvège</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Pologne</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Roumanie</translation>
    </message>
    <message>
        <source>South Korea</source>
        <translation>Corée du Sud</translation>
    </message>
    <message>
        <source>Hong Kong</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ukraine</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlande</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Mexique</translation>
    </message>
    <message>
        <source>China</source>
        <translation>Chine</translation>
    </message>
    <message>
        <source>All Other Countries</source>
        <translation>Tous les autres pays</translation>
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
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>UserGuideForQuietonView</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Guide d&apos;utilisation de Quieton</translation>
    </message>
    <message>
        <source>Our app facilitates anonymous calls by allowing you to add a prefix to the number you dial.</source>
        <translation>Notre application facilite les appels anonymes en vous permettant d&apos;ajouter un préfixe au numéro que vous composez.</translation>
    </message>
    <message>
        <source>For example, if you dial 123-456-789 and the prefix is #31#, the app will dial #31#123-456-789.</source>
        <translation>Par exemple, si vous composez le 123-456-789 et que le préfixe est #31#, l&apos;application composera le #31#123-456-789.</translation>
    </message>
    <message>
        <source>However, the effectiveness of this feature depends on your cellular service provider. You may need to inquire with them to determine which prefix you should use to make a private call.</source>
        <translation>Toutefois, l&apos;efficacité de cette fonction dépend de votre opérateur mobile. Vous devrez peut-être vous renseigner auprès de lui pour savoir quel préfixe utiliser pour passer un appel privé.</translation>
    </message>
    <message>
        <source>You have the option to manually enter this prefix or select from a list provided by us. Please note that the prefix provided by us may not work universally and could vary among different mobile providers. Therefore, it&apos;s essential to verify the correct prefix with your mobile provider for private dialing.</source>
        <translation>Vous pouvez saisir ce préfixe manuellement ou le choisir dans une liste que nous fournissons. Notez que le préfixe que nous proposons peut ne pas fonctionner partout et varier d&apos;un opérateur mobile à l&apos;autre. Il est donc essentiel de vérifier auprès de votre opérateur le bon préfixe pour les appels privés.</translation>
    </message>
    <message>
        <source>Additionally, be aware that there may be additional costs associated with this feature. Always verify with your cellular carrier for accurate information.</source>
        <translation>Sachez également que cette fonction peut entraîner des frais supplémentaires. Renseignez-vous toujours auprès de votre opérateur pour obtenir des informations exactes.</translation>
    </message>
</context>
<context>
    <name>WelcomeView</name>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Make calls without revealing your number.</source>
        <translation>Appelez sans dévoiler votre numéro.</translation>
    </message>
    <message>
        <source>With Quieton, you can easily dial any number privately using a custom prefix of your choice.</source>
        <translation>Avec Quieton, appelez facilement n&apos;importe quel numéro en privé grâce au préfixe de votre choix.</translation>
    </message>
    <message>
        <source>Your identity stays hidden, giving you control over your privacy.</source>
        <translation>Votre identité reste cachée : vous gardez le contrôle de votre vie privée.</translation>
    </message>
    <message>
        <source>Contacts Integration</source>
        <translation>Intégration des contacts</translation>
    </message>
    <message>
        <source>Seamlessly make private calls from your contacts.</source>
        <translation>Passez des appels privés directement depuis vos contacts.</translation>
    </message>
    <message>
        <source>Quieton allows you to select numbers and decide whether to call anonymously.</source>
        <translation>Quieton vous permet de choisir des numéros et de décider si vous appelez anonymement.</translation>
    </message>
    <message>
        <source>No more toggling settings – it&apos;s all at your fingertips.</source>
        <translation>Fini les allers-retours dans les réglages : tout est à portée de main.</translation>
    </message>
    <message>
        <source>Call history management</source>
        <translation>Gestion de l&apos;historique des appels</translation>
    </message>
    <message>
        <source>Take charge of your call history.</source>
        <translation>Prenez le contrôle de votre historique d&apos;appels.</translation>
    </message>
    <message>
        <source>Quieton manages your calls, letting you choose which Calls are saved in-app.</source>
        <translation>Quieton gère vos appels et vous laisse choisir ceux qui sont enregistrés dans l&apos;application.</translation>
    </message>
    <message>
        <source>You&apos;re in control of your call records, making sure your privacy preferences are met.</source>
        <translation>Vous gardez la maîtrise de vos appels enregistrés, dans le respect de vos préférences de confidentialité.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Private calls: dial with your number withheld.</source>
        <translation>Appels privés : composez avec votre numéro masqué.</translation>
    </message>
    <message>
        <source>A quieton: link to open.</source>
        <translation>Un lien quieton: à ouvrir.</translation>
    </message>
</context>
</TS>

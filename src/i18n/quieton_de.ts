<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Terms Of Use</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
</context>
<context>
    <name>AppUpdateAlert</name>
    <message>
        <source>New version</source>
        <translation>Neue Version</translation>
    </message>
    <message>
        <source>A new version of Quieton is now available for download, update now!</source>
        <translation>Eine neue Version von Quieton steht zum Download bereit – jetzt aktualisieren!</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
</context>
<context>
    <name>AutoSettingSection</name>
    <message>
        <source>Auto setting startup</source>
        <translation>Automatische Einstellungen beim Start</translation>
    </message>
    <message>
        <source>Auto Hide My Number</source>
        <translation>Nummer immer unterdrücken</translation>
    </message>
    <message>
        <source>Auto Save To History</source>
        <translation>Immer im Verlauf speichern</translation>
    </message>
    <message>
        <source>Auto Sort Contacts By:</source>
        <translation>Kontakte automatisch sortieren nach:</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
</context>
<context>
    <name>CallConfirmationDialog</name>
    <message>
        <source>Place this call?</source>
        <translation>Diesen Anruf tätigen?</translation>
    </message>
    <message>
        <source>Number to call: %1</source>
        <translation>Anzurufende Nummer: %1</translation>
    </message>
    <message>
        <source>The number is dialled as shown, prefix included.</source>
        <translation>Die Nummer wird genau so gewählt, wie sie angezeigt wird, einschließlich Präfix.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Do not place the call</source>
        <translation>Den Anruf nicht tätigen</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Place the call to %1</source>
        <translation>%1 anrufen</translation>
    </message>
</context>
<context>
    <name>CallPrivacyDialog</name>
    <message>
        <source>Choose Call Privacy</source>
        <translation>Privatsphäre des Anrufs wählen</translation>
    </message>
    <message>
        <source>Select whether you want the call to be private or not. Your choice here will determine whether your call details are visible to others.</source>
        <translation>Wählen Sie, ob der Anruf privat sein soll oder nicht. Davon hängt ab, ob Ihre Anrufdaten für andere sichtbar sind.</translation>
    </message>
    <message>
        <source>Private dialing</source>
        <translation>Privat anrufen</translation>
    </message>
    <message>
        <source>Normal Dialing</source>
        <translation>Normal anrufen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ClipboardSharer</name>
    <message>
        <source>Link copied – paste it to share Quieton</source>
        <translation>Link kopiert – fügen Sie ihn ein, um Quieton zu teilen</translation>
    </message>
</context>
<context>
    <name>ContactsView</name>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Sort descending</source>
        <translation>Absteigend sortieren</translation>
    </message>
    <message>
        <source>Sort ascending</source>
        <translation>Aufsteigend sortieren</translation>
    </message>
    <message>
        <source>To view contacts, enable it in settings.</source>
        <translation>Um Kontakte zu sehen, erlauben Sie den Zugriff in den Einstellungen.</translation>
    </message>
    <message>
        <source>No Contacts Found</source>
        <translation>Keine Kontakte gefunden</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Contact list</source>
        <translation>Kontaktliste</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Kontakte insgesamt</translation>
    </message>
</context>
<context>
    <name>CountryListAlert</name>
    <message>
        <source>Select By Country</source>
        <translation>Land auswählen</translation>
    </message>
    <message>
        <source>Prefixes may vary depending on the cellular provider. Please consult the official documentation of your cellular provider for accurate information. Additional charges may apply, please verify with your cellular provider.</source>
        <translation>Präfixe können je nach Mobilfunkanbieter variieren. Genaue Informationen finden Sie in den offiziellen Unterlagen Ihres Mobilfunkanbieters. Es können zusätzliche Gebühren anfallen; bitte klären Sie das mit Ihrem Mobilfunkanbieter.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DataSection</name>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Reset Settings</source>
        <translation>Einstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>Clear All (Include history calls)</source>
        <translation>Alles löschen (einschließlich Anrufverlauf)</translation>
    </message>
</context>
<context>
    <name>DesktopTelephony</name>
    <message>
        <source>The phone cannot call this number.</source>
        <translation>Das Telefon kann diese Nummer nicht anrufen.</translation>
    </message>
    <message>
        <source>No application on this computer places phone calls.</source>
        <translation>Auf diesem Computer gibt es keine Anwendung, die Telefonanrufe tätigt.</translation>
    </message>
    <message>
        <source>The desktop did not say which application places phone calls. Please try again.</source>
        <translation>Die Arbeitsumgebung hat nicht mitgeteilt, welche Anwendung Telefonanrufe tätigt. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The desktop could not hand the call to a phone application.</source>
        <translation>Die Arbeitsumgebung konnte den Anruf nicht an eine Telefonanwendung übergeben.</translation>
    </message>
</context>
<context>
    <name>DialErrorAlert</name>
    <message>
        <source>Unable to make the call. Please check the number or ensure your device supports calling.</source>
        <translation>Der Anruf konnte nicht getätigt werden. Bitte prüfen Sie die Nummer oder ob Ihr Gerät Anrufe unterstützt.</translation>
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
        <translation>Stern</translation>
    </message>
    <message>
        <source>pound</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Hidden Number</source>
        <translation>Nummer unterdrücken</translation>
    </message>
    <message>
        <source>Save to History</source>
        <translation>Im Verlauf speichern</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Hold to clear the number, or press Escape</source>
        <translation>Gedrückt halten, um die Nummer zu löschen, oder Esc drücken</translation>
    </message>
</context>
<context>
    <name>HelpSection</name>
    <message>
        <source>Help and information</source>
        <translation>Hilfe und Informationen</translation>
    </message>
    <message>
        <source>App version</source>
        <translation>App-Version</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Anleitung für Quieton</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>Noch nicht gelesen</translation>
    </message>
    <message>
        <source>Share with Friends</source>
        <translation>Mit Freunden teilen</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Change Language</source>
        <translation>Sprache ändern</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Nummer unterdrückt</translation>
    </message>
    <message>
        <source>Normal Dialing</source>
        <translation>Normal anrufen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>No history calls to show</source>
        <translation>Keine Anrufe im Verlauf</translation>
    </message>
    <message>
        <source>Remember: don&apos;t forget to switch on &quot;Auto Save to History&quot; in settings to save your calls.</source>
        <translation>Denken Sie daran: Schalten Sie unter „Optionen“ die Einstellung „Immer im Verlauf speichern“ ein, damit Ihre Anrufe gespeichert werden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Call history</source>
        <translation>Anrufverlauf</translation>
    </message>
    <message>
        <source>Total Contacts</source>
        <translation>Kontakte insgesamt</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Dialer</source>
        <translation>Tastenfeld</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Optionen</translation>
    </message>
</context>
<context>
    <name>ModemTelephony</name>
    <message>
        <source>The phone cannot call this number.</source>
        <translation>Das Telefon kann diese Nummer nicht anrufen.</translation>
    </message>
    <message>
        <source>No modem is ready to place calls.</source>
        <translation>Kein Modem ist bereit, Anrufe zu tätigen.</translation>
    </message>
    <message>
        <source>The call could not be placed: %1</source>
        <translation>Der Anruf konnte nicht getätigt werden: %1</translation>
    </message>
</context>
<context>
    <name>OnboardingPage</name>
    <message>
        <source>Additional costs may apply, Please verify with your cellular carrier.</source>
        <translation>Es können zusätzliche Kosten anfallen. Bitte erkundigen Sie sich bei Ihrem Mobilfunkanbieter.</translation>
    </message>
</context>
<context>
    <name>PrefixChoiceAlert</name>
    <message>
        <source>There are several prefixes that can private your number. Please choose one.</source>
        <translation>Es gibt mehrere Präfixe, mit denen Sie Ihre Nummer unterdrücken können. Bitte wählen Sie eines aus.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PrefixEditor</name>
    <message>
        <source>Enter your Prefix</source>
        <translation>Präfix eingeben</translation>
    </message>
    <message>
        <source>Prefix Cannot Be Empty needs at least 2 characters and without spaces</source>
        <translation>Das Präfix darf nicht leer sein: mindestens 2 Zeichen, ohne Leerzeichen</translation>
    </message>
    <message>
        <source>Prefixes can vary among different mobile providers. Check with your mobile provider for the prefix for private dialing. Additional costs may apply. Please verify with your cellular carrier.</source>
        <translation>Präfixe können je nach Mobilfunkanbieter unterschiedlich sein. Erkundigen Sie sich bei Ihrem Mobilfunkanbieter nach dem Präfix für private Anrufe. Es können zusätzliche Kosten anfallen. Bitte klären Sie das mit Ihrem Mobilfunkanbieter.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Edit Manually</source>
        <translation>Manuell bearbeiten</translation>
    </message>
</context>
<context>
    <name>PrefixSection</name>
    <message>
        <source>Private Call Setting</source>
        <translation>Einstellungen für private Anrufe</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>Präfix:</translation>
    </message>
    <message>
        <source>Edit Manually</source>
        <translation>Manuell bearbeiten</translation>
    </message>
    <message>
        <source>Edit by country</source>
        <translation>Nach Land auswählen</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SendFeedBackView</name>
    <message>
        <source>Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience.</source>
        <translation>Ihr Feedback zählt! Schreiben Sie eine Bewertung, schlagen Sie Funktionen vor oder melden Sie technische Probleme und helfen Sie uns so, Ihr Erlebnis zu verbessern.</translation>
    </message>
    <message>
        <source>Leave a Feedback</source>
        <translation>Feedback geben</translation>
    </message>
    <message>
        <source>Suggest a Feature</source>
        <translation>Funktion vorschlagen</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Problem melden</translation>
    </message>
    <message>
        <source>Share with Friend</source>
        <translation>Mit Freunden teilen</translation>
    </message>
</context>
<context>
    <name>Service</name>
    <message>
        <source>%1 was not called: first answer the call waiting on screen.</source>
        <translation>%1 wurde nicht angerufen: Beantworten Sie zuerst die Rückfrage zum Anruf auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>The call could not be placed.</source>
        <translation>Der Anruf konnte nicht getätigt werden.</translation>
    </message>
    <message>
        <source>Check out this cool app! </source>
        <translation>Schau dir diese coole App an! </translation>
    </message>
</context>
<context>
    <name>SettingConfirmAlert</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SettingCover</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>SettingView</name>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Anleitung für Quieton</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Are you sure you want to reset settings?</source>
        <translation>Möchten Sie die Einstellungen wirklich zurücksetzen?</translation>
    </message>
    <message>
        <source>This action will reset your settings. Without delete you history calls.</source>
        <translation>Dadurch werden Ihre Einstellungen zurückgesetzt. Ihr Anrufverlauf bleibt erhalten.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Are you sure you want to Clear All Data?</source>
        <translation>Möchten Sie wirklich alle Daten löschen?</translation>
    </message>
    <message>
        <source>This action will reset you setting and delete all history data</source>
        <translation>Dadurch werden Ihre Einstellungen zurückgesetzt und der gesamte Anrufverlauf gelöscht.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Optionen</translation>
    </message>
</context>
<context>
    <name>SettingViewModel</name>
    <message>
        <source>United States</source>
        <translation>Vereinigte Staaten</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Kanada</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Vereinigtes Königreich</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Australien</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Österreich</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irland</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Deutschland</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japan</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Ungarn</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Südafrika</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasilien</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Tschechien</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niederlande</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Neuseeland</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norwegen</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polen</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumänien</translation>
    </message>
    <message>
        <source>South Korea</source>
        <translation>Südkorea</translation>
    </message>
    <message>
        <source>Hong Kong</source>
        <translation>Hongkong</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ukraine</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finnland</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Mexiko</translation>
    </message>
    <message>
        <source>China</source>
        <translation>China</translation>
    </message>
    <message>
        <source>All Other Countries</source>
        <translation>Alle anderen Länder</translation>
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
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>UserGuideForQuietonView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>User Guide for Quieton</source>
        <translation>Anleitung für Quieton</translation>
    </message>
    <message>
        <source>Our app facilitates anonymous calls by allowing you to add a prefix to the number you dial.</source>
        <translation>Unsere App ermöglicht anonyme Anrufe: Sie können der gewählten Nummer ein Präfix voranstellen.</translation>
    </message>
    <message>
        <source>For example, if you dial 123-456-789 and the prefix is #31#, the app will dial #31#123-456-789.</source>
        <translation>Wenn Sie zum Beispiel 123-456-789 wählen und das Präfix #31# lautet, wählt die App #31#123-456-789.</translation>
    </message>
    <message>
        <source>However, the effectiveness of this feature depends on your cellular service provider. You may need to inquire with them to determine which prefix you should use to make a private call.</source>
        <translation>Ob diese Funktion wirkt, hängt jedoch von Ihrem Mobilfunkanbieter ab. Möglicherweise müssen Sie dort nachfragen, welches Präfix Sie für einen privaten Anruf verwenden sollten.</translation>
    </message>
    <message>
        <source>You have the option to manually enter this prefix or select from a list provided by us. Please note that the prefix provided by us may not work universally and could vary among different mobile providers. Therefore, it&apos;s essential to verify the correct prefix with your mobile provider for private dialing.</source>
        <translation>Sie können dieses Präfix von Hand eingeben oder aus einer von uns bereitgestellten Liste auswählen. Bitte beachten Sie, dass das von uns angegebene Präfix nicht überall funktionieren muss und je nach Mobilfunkanbieter unterschiedlich sein kann. Klären Sie daher unbedingt mit Ihrem Mobilfunkanbieter, welches Präfix für private Anrufe das richtige ist.</translation>
    </message>
    <message>
        <source>Additionally, be aware that there may be additional costs associated with this feature. Always verify with your cellular carrier for accurate information.</source>
        <translation>Beachten Sie außerdem, dass für diese Funktion zusätzliche Kosten anfallen können. Erkundigen Sie sich für genaue Informationen immer bei Ihrem Mobilfunkanbieter.</translation>
    </message>
</context>
<context>
    <name>WelcomeView</name>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Make calls without revealing your number.</source>
        <translation>Telefonieren, ohne die eigene Nummer preiszugeben.</translation>
    </message>
    <message>
        <source>With Quieton, you can easily dial any number privately using a custom prefix of your choice.</source>
        <translation>Mit Quieton rufen Sie jede Nummer ganz einfach privat an – mit einem Präfix Ihrer Wahl.</translation>
    </message>
    <message>
        <source>Your identity stays hidden, giving you control over your privacy.</source>
        <translation>Ihre Identität bleibt verborgen – Sie behalten die Kontrolle über Ihre Privatsphäre.</translation>
    </message>
    <message>
        <source>Contacts Integration</source>
        <translation>Kontakte eingebunden</translation>
    </message>
    <message>
        <source>Seamlessly make private calls from your contacts.</source>
        <translation>Private Anrufe direkt aus Ihren Kontakten.</translation>
    </message>
    <message>
        <source>Quieton allows you to select numbers and decide whether to call anonymously.</source>
        <translation>Mit Quieton wählen Sie Nummern aus und entscheiden, ob Sie anonym anrufen.</translation>
    </message>
    <message>
        <source>No more toggling settings – it&apos;s all at your fingertips.</source>
        <translation>Kein ständiges Umstellen der Einstellungen mehr – alles ist nur einen Fingertipp entfernt.</translation>
    </message>
    <message>
        <source>Call history management</source>
        <translation>Anrufverlauf verwalten</translation>
    </message>
    <message>
        <source>Take charge of your call history.</source>
        <translation>Behalten Sie Ihren Anrufverlauf im Griff.</translation>
    </message>
    <message>
        <source>Quieton manages your calls, letting you choose which Calls are saved in-app.</source>
        <translation>Quieton verwaltet Ihre Anrufe und lässt Sie wählen, welche Anrufe in der App gespeichert werden.</translation>
    </message>
    <message>
        <source>You&apos;re in control of your call records, making sure your privacy preferences are met.</source>
        <translation>Sie behalten die Kontrolle über Ihre Anrufliste – ganz nach Ihren Wünschen an die Privatsphäre.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht&apos;s</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Private calls: dial with your number withheld.</source>
        <translation>Private Anrufe: wählen Sie mit unterdrückter Rufnummer.</translation>
    </message>
    <message>
        <source>A quieton: link to open.</source>
        <translation>Ein zu öffnender quieton:-Link.</translation>
    </message>
</context>
</TS>

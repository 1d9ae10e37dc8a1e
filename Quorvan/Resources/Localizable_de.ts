<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
  <name></name>
  <message id="AboutQuorvan_title">
    <source></source>
    <translation>Über &amp;Quorvan</translation>
  </message>
  <message id="Preferences_title">
    <source></source>
    <translation>&amp;Einstellungen …</translation>
  </message>
  <message id="Services_title">
    <source></source>
    <translation>Dienste</translation>
  </message>
  <message id="HideQuorvan_title">
    <source></source>
    <translation>Quorvan ausblenden</translation>
  </message>
  <message id="HideOthers_title">
    <source></source>
    <translation>Andere ausblenden</translation>
  </message>
  <message id="ShowAll_title">
    <source></source>
    <translation>Alle einblenden</translation>
  </message>
  <message id="QuitQuorvan_title">
    <source></source>
    <translation>Quorvan &amp;beenden</translation>
  </message>
  <message id="Help_title">
    <source></source>
    <translation>&amp;Hilfe</translation>
  </message>
  <message id="QuorvanHelp_title">
    <source></source>
    <translation>&amp;Hilfe zu Quorvan</translation>
  </message>
  <message id="Application_Menu_Label">
    <source></source>
    <translation>&amp;Quorvan</translation>
  </message>
  <message id="About_Description_Label">
    <source></source>
    <translation>Rechteverwaltung für Dateien und Ordner auf Kelp-Volumes.</translation>
  </message>
  <message id="About_Version_Label">
    <source></source>
    <translation>Version %1</translation>
  </message>
  <message id="About_Licence_Label">
    <source></source>
    <translation>Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
  </message>
  <message id="Help_Heading_Label">
    <source></source>
    <translation>So arbeitet Quorvan</translation>
  </message>
  <message id="Help_Selection_Label">
    <source></source>
    <translation>Quorvan bearbeitet die Datei oder den Ordner, den Sie in der Dateiverwaltung gewählt haben. Um etwas anderes zu verwalten, wählen Sie es dort aus und öffnen Sie Quorvan erneut aus dem Menü.</translation>
  </message>
  <message id="Help_Editing_Label">
    <source></source>
    <translation>Setzen oder entfernen Sie ein Häkchen, um ein Recht zu erteilen oder zu entziehen. Erst mit „Anwenden“ wird etwas an den Server gesendet; „Zurücksetzen“ holt den Stand des Servers zurück. Ändern können Sie Rechte dort, wo Sie selbst Supervisor oder Zugriffssteuerung haben; überall sonst ist die Liste nur zum Lesen.</translation>
  </message>
  <message id="Help_Rights_Label">
    <source></source>
    <translation>Die Buchstaben über den Kästchen</translation>
  </message>
  <message id="Help_Log_Label">
    <source></source>
    <translation>Was Quorvan den Server fragt und was der Server antwortet, steht in %1</translation>
  </message>
  <message id="RM_Window_Title">
    <source></source>
    <translation>Rechteverwaltung</translation>
  </message>
  <message id="Trustee_Rights_Title">
    <source></source>
    <translation>Trustee-Rechte</translation>
  </message>
  <message id="File_System_Rights_Title">
    <source></source>
    <translation>Rechte im Dateisystem</translation>
  </message>
  <message id="User_Quota_Title">
    <source></source>
    <translation>Kontingente der Benutzer</translation>
  </message>
  <message id="Information_Title">
    <source></source>
    <translation>Informationen</translation>
  </message>
  <message id="Settings_Title">
    <source></source>
    <translation>Einstellungen</translation>
  </message>
  <message id="Trustee_Rights_Description_Label">
    <source></source>
    <translation>Wer hier was darf: Trustees und ihre Rechte</translation>
  </message>
  <message id="File_System_Rights_Description_Label">
    <source></source>
    <translation>Alle Pfade darunter, auf denen ein Benutzer oder eine Gruppe Rechte hat</translation>
  </message>
  <message id="User_Quota_Description_Label">
    <source></source>
    <translation>Wie viel Platz jeder Benutzer auf dem Volume belegen darf</translation>
  </message>
  <message id="Information_Description_Label">
    <source></source>
    <translation>Attribute, Eigentümer und Ordnerkontingent</translation>
  </message>
  <message id="Settings_Description_Label">
    <source></source>
    <translation>Trustees beider Verzeichnisdienste anzeigen</translation>
  </message>
  <message id="Managed_Path_Label">
    <source></source>
    <translation>Verwalteter Pfad</translation>
  </message>
  <message id="Try_Again_title">
    <source></source>
    <translation>&amp;Erneut versuchen</translation>
  </message>
  <message id="Try_Again_Tip_Label">
    <source></source>
    <translation>Den Server noch einmal fragen, wer angemeldet ist</translation>
  </message>
  <message id="Managed_Server_Label">
    <source></source>
    <translation>auf %1</translation>
  </message>
  <message id="Rights_Label">
    <source></source>
    <translation>Rechte</translation>
  </message>
  <message id="Inherited_Rights_Label">
    <source></source>
    <translation>Filter für vererbte Rechte</translation>
  </message>
  <message id="Effective_Rights_Label">
    <source></source>
    <translation>Effektive Rechte</translation>
  </message>
  <message id="Trustee_Directories_Label">
    <source></source>
    <translation>Trustee-Ordner</translation>
  </message>
  <message id="Rights_Tip_Label">
    <source></source>
    <translation>Die Trustees dieses Pfads und ihre Rechte</translation>
  </message>
  <message id="Inherited_Rights_Tip_Label">
    <source></source>
    <translation>Welche Rechte dieser Pfad aus den übergeordneten Ordnern durchlässt</translation>
  </message>
  <message id="Effective_Rights_Tip_Label">
    <source></source>
    <translation>Was ein Trustee hier tatsächlich darf</translation>
  </message>
  <message id="Trustee_Directories_Tip_Label">
    <source></source>
    <translation>Die Trustees der über- und untergeordneten Ordner</translation>
  </message>
  <message id="Close_title">
    <source></source>
    <translation>&amp;Schließen</translation>
  </message>
  <message id="Close_Tip_Label">
    <source></source>
    <translation>Zurück zur Übersicht</translation>
  </message>
  <message id="Col_UserGrp_Name">
    <source></source>
    <translation>Benutzer oder Gruppe</translation>
  </message>
  <message id="Add_Remove_Label">
    <source></source>
    <translation>Trustees:</translation>
  </message>
  <message id="Apply_title">
    <source></source>
    <translation>&amp;Anwenden</translation>
  </message>
  <message id="Revert_title">
    <source></source>
    <translation>&amp;Zurücksetzen</translation>
  </message>
  <message id="Rights_Label_Title">
    <source></source>
    <translation>Trustees und ihre Rechte</translation>
  </message>
  <message id="Morvane_Trustee_Label">
    <source></source>
    <translation>Auch &amp;Morvane-Trustees anzeigen</translation>
  </message>
  <message id="AD_Trustee_Label">
    <source></source>
    <translation>Auch Active-&amp;Directory-Trustees anzeigen</translation>
  </message>
  <message id="Both_Trustee_Label">
    <source></source>
    <translation>&amp;Trustees beider Verzeichnisdienste anzeigen</translation>
  </message>
  <message id="Supervisor_Label">
    <source></source>
    <translation>Supervisor</translation>
  </message>
  <message id="Read_Label">
    <source></source>
    <translation>Lesen</translation>
  </message>
  <message id="Write_Label">
    <source></source>
    <translation>Schreiben</translation>
  </message>
  <message id="Erase_Label">
    <source></source>
    <translation>Löschen</translation>
  </message>
  <message id="Create_Label">
    <source></source>
    <translation>Erstellen</translation>
  </message>
  <message id="Modify_Label">
    <source></source>
    <translation>Ändern</translation>
  </message>
  <message id="File_Scan_Label">
    <source></source>
    <translation>Auflisten</translation>
  </message>
  <message id="Access_Control_Label">
    <source></source>
    <translation>Zugriffssteuerung</translation>
  </message>
  <message id="Right_Ticked_Label">
    <source></source>
    <translation>%1: erteilt</translation>
  </message>
  <message id="Right_Unticked_Label">
    <source></source>
    <translation>%1: nicht erteilt</translation>
  </message>
  <message id="Search_Placeholder_Label">
    <source></source>
    <translation>Nach Namen suchen</translation>
  </message>
  <message id="Search_Tip_Label">
    <source></source>
    <translation>Geben Sie einen Teil des Namens ein. Bei der Suche nach dem ganzen Namen steht * für beliebige Zeichen und ? für eines.</translation>
  </message>
  <message id="No_Trustees_Label">
    <source></source>
    <translation>Keine Trustees auf diesem Pfad.</translation>
  </message>
  <message id="No_Match_Label">
    <source></source>
    <translation>Kein Name passt zu „%1“.</translation>
  </message>
  <message id="Rights_Read_Only_Label">
    <source></source>
    <translation>Sie können diese Rechte ansehen, aber nicht ändern: dazu brauchen Sie hier das Recht Supervisor oder Zugriffssteuerung.</translation>
  </message>
  <message id="Add_title">
    <source></source>
    <translation>H&amp;inzufügen …</translation>
  </message>
  <message id="Add_Tip_Label">
    <source></source>
    <translation>Benutzer und Gruppen auswählen, die Trustees dieses Pfads werden</translation>
  </message>
  <message id="Remove_title">
    <source></source>
    <translation>&amp;Entfernen</translation>
  </message>
  <message id="Remove_Tip_Label">
    <source></source>
    <translation>Die ausgewählten Trustees von diesem Pfad entfernen</translation>
  </message>
  <message id="Revert_Tip_Label">
    <source></source>
    <translation>Alle noch nicht angewendeten Änderungen verwerfen</translation>
  </message>
  <message id="Apply_Tip_Label">
    <source></source>
    <translation>Alle Änderungen an den Server senden</translation>
  </message>
  <message id="Path_Label">
    <source></source>
    <translation>Pfad</translation>
  </message>
  <message id="Owner_Label">
    <source></source>
    <translation>Eigentümer</translation>
  </message>
  <message id="No_Owner_Label">
    <source></source>
    <translation>Niemand</translation>
  </message>
  <message id="Owner_Gone_Label">
    <source></source>
    <translation>Unbekannter Benutzer (%1)</translation>
  </message>
  <message id="Change_Owner_title">
    <source></source>
    <translation>Ä&amp;ndern …</translation>
  </message>
  <message id="Change_Owner_Tip_Label">
    <source></source>
    <translation>Den Benutzer auswählen, dem diese Datei oder dieser Ordner gehört</translation>
  </message>
  <message id="Information_Read_Only_Label">
    <source></source>
    <translation>Eigentümer oder Grenze zu ändern erfordert hier das Recht Supervisor. Ob Sie Attribute ändern dürfen, entscheidet der Server.</translation>
  </message>
  <message id="KELP_Attr_Label">
    <source></source>
    <translation>&amp;Kelp-Attribute</translation>
  </message>
  <message id="Read_Only_Label">
    <source></source>
    <translation>S&amp;chreibgeschützt</translation>
  </message>
  <message id="Read_Only_Tip_Label">
    <source></source>
    <translation>Der Inhalt kann nicht geändert werden; Umbenennen und Löschen sind ebenfalls gesperrt</translation>
  </message>
  <message id="Hidden_Label">
    <source></source>
    <translation>&amp;Versteckt</translation>
  </message>
  <message id="Hidden_Tip_Label">
    <source></source>
    <translation>Erscheint nicht in gewöhnlichen Auflistungen</translation>
  </message>
  <message id="Archive_Label">
    <source></source>
    <translation>A&amp;rchiv</translation>
  </message>
  <message id="Archive_Tip_Label">
    <source></source>
    <translation>Seit der letzten Sicherung geändert</translation>
  </message>
  <message id="Purge_Immediately_Label">
    <source></source>
    <translation>Sofort &amp;endgültig löschen</translation>
  </message>
  <message id="Purge_Immediately_Tip_Label">
    <source></source>
    <translation>Nach dem Löschen unwiderruflich verloren; keine Wiederherstellung möglich</translation>
  </message>
  <message id="Rename_Inhibit_Label">
    <source></source>
    <translation>&amp;Umbenennen sperren</translation>
  </message>
  <message id="Rename_Inhibit_Tip_Label">
    <source></source>
    <translation>Kann nicht umbenannt werden; gilt immer bei Schreibschutz</translation>
  </message>
  <message id="Delete_Inhibit_Label">
    <source></source>
    <translation>&amp;Löschen sperren</translation>
  </message>
  <message id="Delete_Inhibit_Tip_Label">
    <source></source>
    <translation>Kann nicht gelöscht werden; gilt immer bei Schreibschutz</translation>
  </message>
  <message id="Immediate_Compression_Label">
    <source></source>
    <translation>So&amp;fort komprimieren</translation>
  </message>
  <message id="Immediate_Compression_Tip_Label">
    <source></source>
    <translation>Wird komprimiert, sobald der Server dafür Zeit hat</translation>
  </message>
  <message id="Dont_Compress_Label">
    <source></source>
    <translation>N&amp;icht komprimieren</translation>
  </message>
  <message id="Dont_Compress_Tip_Label">
    <source></source>
    <translation>Wird nie komprimiert; nur für Dateien</translation>
  </message>
  <message id="Directory_Quota_Label">
    <source></source>
    <translation>&amp;Ordnerkontingent</translation>
  </message>
  <message id="Limit_Label">
    <source></source>
    <translation>Grenze</translation>
  </message>
  <message id="Used_Label">
    <source></source>
    <translation>Belegt</translation>
  </message>
  <message id="Available_Label">
    <source></source>
    <translation>Verfügbar</translation>
  </message>
  <message id="Unit_Label">
    <source></source>
    <translation>Einheit der Grenze</translation>
  </message>
  <message id="Edit_Limit_title">
    <source></source>
    <translation>Grenze &amp;bearbeiten</translation>
  </message>
  <message id="Edit_Limit_Tip_Label">
    <source></source>
    <translation>Eine andere Grenze für diesen Ordner eingeben</translation>
  </message>
  <message id="Remove_Limit_title">
    <source></source>
    <translation>&amp;Grenze entfernen</translation>
  </message>
  <message id="Remove_Limit_Tip_Label">
    <source></source>
    <translation>Diesen Ordner so weit wachsen lassen, wie das Volume es zulässt</translation>
  </message>
  <message id="Quota_Bar_Label">
    <source></source>
    <translation>Belegter Anteil der Grenze</translation>
  </message>
  <message id="Quota_Usage_Label">
    <source></source>
    <translation>%1 % belegt</translation>
  </message>
  <message id="Quota_Exceeded_Label">
    <source></source>
    <translation>Grenze überschritten</translation>
  </message>
  <message id="Salvage_Title">
    <source></source>
    <translation>Wiederherstellen</translation>
  </message>
  <message id="Purge_Title">
    <source></source>
    <translation>Endgültig löschen</translation>
  </message>
  <message id="Salvage_Description_Label">
    <source></source>
    <translation>Gelöschte Dateien zurückholen</translation>
  </message>
  <message id="Purge_Description_Label">
    <source></source>
    <translation>Gelöschte Dateien entfernen</translation>
  </message>
  <message id="Salvage_Purpose_Label">
    <source></source>
    <translation>Dateien, die unterhalb dieses Pfads gelöscht wurden, bleiben auf dem Volume, bis sie endgültig gelöscht werden. Bis dahin lassen sie sich mit ihren Trustees und Attributen wiederherstellen.</translation>
  </message>
  <message id="Purge_Purpose_Label">
    <source></source>
    <translation>Dateien, die unterhalb dieses Pfads gelöscht wurden, bleiben auf dem Volume, bis sie endgültig gelöscht werden. Das gibt ihren Platz frei; wiederherstellen lassen sie sich danach nicht mehr.</translation>
  </message>
  <message id="Salvage_Purge_Nothing_Sent_Label">
    <source></source>
    <translation>Diese Version kann beides noch nicht: nichts auf dieser Seite sendet etwas an den Server.</translation>
  </message>
  <message id="Deleted_Files_Tip_Label">
    <source></source>
    <translation>Was diese Version mit gelöschten Dateien tun kann</translation>
  </message>
  <message id="More_Information_title">
    <source></source>
    <translation>&amp;Weitere Informationen …</translation>
  </message>
  <message id="More_Information_Title">
    <source></source>
    <translation>Weitere Informationen</translation>
  </message>
  <message id="Salvage_Purge_More_Label">
    <source></source>
    <translation>Der Server behält eine gelöschte Datei, bis ihr Platz gebraucht wird oder jemand sie endgültig löscht. Wiederherstellen bringt sie in ihren Ordner zurück; endgültiges Löschen entfernt sie für immer. Dateien mit dem Attribut „Sofort endgültig löschen“ werden nie aufbewahrt.

Quorvan kann Dateien noch nicht wiederherstellen oder endgültig löschen und sendet hier nichts an den Server. Verwenden Sie dafür bis auf Weiteres die Verwaltungsprogramme des Servers.</translation>
  </message>
  <message id="Users_with_Quota_Label">
    <source></source>
    <translation>Benutzer mit einem Kontingent auf diesem Volume</translation>
  </message>
  <message id="User_Name_Label">
    <source></source>
    <translation>Benutzer</translation>
  </message>
  <message id="Col_User_Name">
    <source></source>
    <translation>Name</translation>
  </message>
  <message id="Quota_Limit_Label">
    <source></source>
    <translation>Grenze &amp;für jeden:</translation>
  </message>
  <message id="No_User_Quotas_Label">
    <source></source>
    <translation>Kein Benutzer hat auf diesem Volume ein Kontingent.</translation>
  </message>
  <message id="User_Quotas_Unknown_Label">
    <source></source>
    <translation>Die Kontingente konnten nicht vom Server gelesen werden.</translation>
  </message>
  <message id="User_Quota_Read_Only_Label">
    <source></source>
    <translation>Sie können diese Kontingente ansehen, aber nicht ändern: dazu brauchen Sie hier das Recht Supervisor.</translation>
  </message>
  <message id="Edit_title">
    <source></source>
    <translation>&amp;Bearbeiten …</translation>
  </message>
  <message id="Add_User_Quota_Tip_Label">
    <source></source>
    <translation>Benutzer auswählen und ihren Platz begrenzen</translation>
  </message>
  <message id="Edit_User_Quota_Tip_Label">
    <source></source>
    <translation>Den ausgewählten Benutzern eine andere Grenze geben</translation>
  </message>
  <message id="Remove_User_Quota_Tip_Label">
    <source></source>
    <translation>Die Grenze der ausgewählten Benutzer aufheben</translation>
  </message>
  <message id="Add_User_Quota_Title">
    <source></source>
    <translation>Benutzerkontingent hinzufügen</translation>
  </message>
  <message id="Edit_User_Quota_Title">
    <source></source>
    <translation>Benutzerkontingent bearbeiten</translation>
  </message>
  <message id="Add_Users_title">
    <source></source>
    <translation>B&amp;enutzer hinzufügen …</translation>
  </message>
  <message id="Add_Users_Tip_Label">
    <source></source>
    <translation>Weitere Benutzer auswählen, für die diese Grenze gilt</translation>
  </message>
  <message id="No_Users_Chosen_Label">
    <source></source>
    <translation>Noch keine Benutzer ausgewählt.</translation>
  </message>
  <message id="User_Quota_Unlimited">
    <source></source>
    <translation>Unbegrenzt</translation>
  </message>
  <message id="User_Quota_Not_Set">
    <source></source>
    <translation>Nicht gesetzt</translation>
  </message>
  <message id="User_Quota_Maximum">
    <source></source>
    <translation>So viel, wie das Volume hat</translation>
  </message>
  <message id="Invalid_Quota_Limit">
    <source></source>
    <translation>Eine Grenze ist eine ganze Zahl, zum Beispiel 5. Wählen Sie die Einheit aus der Liste daneben.</translation>
  </message>
  <message id="B">
    <source></source>
    <translation>B</translation>
  </message>
  <message id="KB">
    <source></source>
    <translation>KB</translation>
  </message>
  <message id="MB">
    <source></source>
    <translation>MB</translation>
  </message>
  <message id="GB">
    <source></source>
    <translation>GB</translation>
  </message>
  <message id="TB">
    <source></source>
    <translation>TB</translation>
  </message>
  <message id="PB">
    <source></source>
    <translation>PB</translation>
  </message>
  <message id="Inherited_Deselect_Label">
    <source></source>
    <translation>Ein Recht mit Häkchen gelangt aus den übergeordneten Ordnern bis zu diesem Pfad. Entfernen Sie ein Häkchen, um das Recht hier aufzuhalten.</translation>
  </message>
  <message id="Inherited_Box_Tip_Label">
    <source></source>
    <translation>Mit Häkchen: %1 kommt aus den übergeordneten Ordnern an. Ohne: es endet hier.</translation>
  </message>
  <message id="Inherited_Supervisor_Tip_Label">
    <source></source>
    <translation>Kein Filter hält das Recht Supervisor auf.</translation>
  </message>
  <message id="Effective_Label">
    <source></source>
    <translation>Was die Trustees dieses Pfads hier tatsächlich dürfen:</translation>
  </message>
  <message id="Select_Effective_Trustee_Label">
    <source></source>
    <translation>Was ein anderer Benutzer oder eine andere Gruppe hier tatsächlich darf:</translation>
  </message>
  <message id="User_Group_Label">
    <source></source>
    <translation>Benutzer oder Gruppe:</translation>
  </message>
  <message id="Nobody_Chosen_Label">
    <source></source>
    <translation>Noch niemand ausgewählt</translation>
  </message>
  <message id="Choose_title">
    <source></source>
    <translation>A&amp;uswählen …</translation>
  </message>
  <message id="Choose_Effective_Tip_Label">
    <source></source>
    <translation>Den Benutzer oder die Gruppe auswählen, deren effektive Rechte Sie sehen möchten</translation>
  </message>
  <message id="Choose_Needs_Rights_Label">
    <source></source>
    <translation>Einen Benutzer oder eine Gruppe auszuwählen erfordert hier das Recht Supervisor oder Zugriffssteuerung</translation>
  </message>
  <message id="Subdirectories_Label">
    <source></source>
    <translation>Trustees auf diesem Pfad und allem darunter:</translation>
  </message>
  <message id="Parent_dir_Label">
    <source></source>
    <translation>Trustees auf diesem Pfad und den Ordnern darüber:</translation>
  </message>
  <message id="Remove_Trustee_Label">
    <source></source>
    <translation>Trustees entfernen:</translation>
  </message>
  <message id="Remove_Parent_title">
    <source></source>
    <translation>E&amp;ntfernen</translation>
  </message>
  <message id="Col_Path">
    <source></source>
    <translation>Pfad</translation>
  </message>
  <message id="Search_Paths_Placeholder_Label">
    <source></source>
    <translation>Nach Name oder Pfad suchen</translation>
  </message>
  <message id="Search_Sub_Label">
    <source></source>
    <translation>Diesen Pfad und alles darunter nach Name oder Pfad durchsuchen</translation>
  </message>
  <message id="Search_Parent_Label">
    <source></source>
    <translation>Diesen Pfad und die Ordner darüber nach Name oder Pfad durchsuchen</translation>
  </message>
  <message id="No_Sub_Trustees_Label">
    <source></source>
    <translation>Keine Trustees auf diesem Pfad oder darunter.</translation>
  </message>
  <message id="No_Parent_Trustees_Label">
    <source></source>
    <translation>Keine Trustees auf diesem Pfad oder den Ordnern darüber.</translation>
  </message>
  <message id="No_Match_Path_Label">
    <source></source>
    <translation>Kein Name oder Pfad passt zu „%1“.</translation>
  </message>
  <message id="FSR_Label_Title">
    <source></source>
    <translation>Alle Pfade darunter, auf denen ein Benutzer oder eine Gruppe Trustee ist:</translation>
  </message>
  <message id="Choose_FSR_Tip_Label">
    <source></source>
    <translation>Den Benutzer oder die Gruppe auswählen, deren Pfade Sie sehen möchten</translation>
  </message>
  <message id="Group_Rights">
    <source></source>
    <translation>&amp;Gruppenrechte …</translation>
  </message>
  <message id="Group_Rights_Tip_Label">
    <source></source>
    <translation>Zeigen, welche Rechte dieser Benutzer durch seine Gruppen hat</translation>
  </message>
  <message id="Add_Remove_Path_Label">
    <source></source>
    <translation>Pfade:</translation>
  </message>
  <message id="Add_Path_Tip_Label">
    <source></source>
    <translation>Dateien und Ordner auswählen, auf denen dieser Benutzer oder diese Gruppe Trustee wird</translation>
  </message>
  <message id="Remove_Path_Tip_Label">
    <source></source>
    <translation>Diesen Benutzer oder diese Gruppe von den ausgewählten Pfaden entfernen</translation>
  </message>
  <message id="FSR_Read_Only_Label">
    <source></source>
    <translation>Einen Benutzer oder eine Gruppe auszuwählen erfordert auf diesem Pfad das Recht Supervisor.</translation>
  </message>
  <message id="FSR_Nobody_Label">
    <source></source>
    <translation>Wählen Sie einen Benutzer oder eine Gruppe, um die Pfade zu sehen.</translation>
  </message>
  <message id="FSR_No_Paths_Label">
    <source></source>
    <translation>Kein Trustee auf einem Pfad darunter.</translation>
  </message>
  <message id="Group_Rights_Title">
    <source></source>
    <translation>Rechte durch Gruppen</translation>
  </message>
  <message id="Col_Group">
    <source></source>
    <translation>Gruppe</translation>
  </message>
  <message id="No_Group_Rights_Label">
    <source></source>
    <translation>Keine Gruppe dieses Benutzers ist Trustee auf einem Pfad darunter.</translation>
  </message>
  <message id="Browse_Folder_Title">
    <source></source>
    <translation>Dateien und Ordner auswählen</translation>
  </message>
  <message id="Browse_Folder_Root_Label">
    <source></source>
    <translation>Eingehängtes Volume</translation>
  </message>
  <message id="Volume_Not_Mounted_Label">
    <source></source>
    <translation>Das Volume %1 ist auf diesem Computer nicht eingehängt. Öffnen Sie es in der Dateiverwaltung und versuchen Sie es dann erneut.</translation>
  </message>
  <message id="Warning_Title">
    <source></source>
    <translation>Warnung</translation>
  </message>
  <message id="Error_Title">
    <source></source>
    <translation>Fehler</translation>
  </message>
  <message id="View_label">
    <source></source>
    <translation>A&amp;nsicht:</translation>
  </message>
  <message id="Node_label">
    <source></source>
    <translation>&amp;Domäne:</translation>
  </message>
  <message id="Node_label_morvane">
    <source></source>
    <translation>Unterhalb &amp;von:</translation>
  </message>
  <message id="Users_Title">
    <source></source>
    <translation>Benutzer</translation>
  </message>
  <message id="Groups_Title">
    <source></source>
    <translation>Gruppen</translation>
  </message>
  <message id="Containers_Title">
    <source></source>
    <translation>Container</translation>
  </message>
  <message id="Fetch_title">
    <source></source>
    <translation>A&amp;brufen</translation>
  </message>
  <message id="Fetch_Tip_Label">
    <source></source>
    <translation>Den Verzeichnisdienst fragen</translation>
  </message>
  <message id="Select_title">
    <source></source>
    <translation>A&amp;uswählen</translation>
  </message>
  <message id="Cancel_title">
    <source></source>
    <translation>&amp;Abbrechen</translation>
  </message>
  <message id="OK_title">
    <source></source>
    <translation>&amp;OK</translation>
  </message>
  <message id="Browse_AD_Title">
    <source></source>
    <translation>Aus Active Directory auswählen</translation>
  </message>
  <message id="Browse_Morvane_Title">
    <source></source>
    <translation>Aus dem Morvane-Baum auswählen</translation>
  </message>
  <message id="Browse_List_Label">
    <source></source>
    <translation>Gefundene Benutzer und Gruppen</translation>
  </message>
  <message id="Browse_Choose_Label">
    <source></source>
    <translation>Auswählen …</translation>
  </message>
  <message id="Browse_AD_Start_Label">
    <source></source>
    <translation>Wählen Sie, was in welcher Domäne angezeigt werden soll, und drücken Sie „Abrufen“.</translation>
  </message>
  <message id="Browse_Morvane_Start_Label">
    <source></source>
    <translation>Wählen Sie, was angezeigt werden soll, geben Sie ein, wo gesucht wird (zum Beispiel .O=kestmoor.T=tree.), und drücken Sie „Abrufen“.</translation>
  </message>
  <message id="No_Domains_Label">
    <source></source>
    <translation>Dieser Computer kennt keine Active-Directory-Domäne.</translation>
  </message>
  <message id="Domain_Silent_Label">
    <source></source>
    <translation>%1 antwortet nicht. Einzelheiten stehen in der Protokolldatei.</translation>
  </message>
  <message id="No_Users_In_Label">
    <source></source>
    <translation>Keine Benutzer in %1 gefunden.</translation>
  </message>
  <message id="No_Groups_In_Label">
    <source></source>
    <translation>Keine Gruppen in %1 gefunden.</translation>
  </message>
  <message id="No_Users_Below_Label">
    <source></source>
    <translation>Keine Benutzer gefunden unterhalb von %1</translation>
  </message>
  <message id="No_Groups_Below_Label">
    <source></source>
    <translation>Keine Gruppen gefunden unterhalb von %1</translation>
  </message>
  <message id="No_Containers_Below_Label">
    <source></source>
    <translation>Keine Container gefunden unterhalb von %1</translation>
  </message>
  <message id="No_Users_Label">
    <source></source>
    <translation>Keine Benutzer gefunden.</translation>
  </message>
  <message id="No_Groups_Label">
    <source></source>
    <translation>Keine Gruppen gefunden.</translation>
  </message>
  <message id="Identify_Source_Title">
    <source></source>
    <translation>Verzeichnisdienst auswählen</translation>
  </message>
  <message id="Select_source_of_identity_Label">
    <source></source>
    <translation>Aus welchem Verzeichnisdienst möchten Sie auswählen?</translation>
  </message>
  <message id="Morvane_title">
    <source></source>
    <translation>&amp;Morvane</translation>
  </message>
  <message id="Active_Directory_title">
    <source></source>
    <translation>Active &amp;Directory</translation>
  </message>
  <message id="Add_Trustee_Message_Label">
    <source></source>
    <translation>Ist dies eingeschaltet, zeigen Listen die Trustees beider Verzeichnisdienste, und bei jeder Auswahl eines Benutzers oder einer Gruppe werden Sie zuerst gefragt, in welchem gesucht werden soll. Die Einstellung gilt, bis Sie Quorvan beenden.</translation>
  </message>
  <message id="Settings_Read_Only_Label">
    <source></source>
    <translation>Nur Benutzer mit dem Recht Supervisor oder Zugriffssteuerung auf diesem Pfad können dies ändern.</translation>
  </message>
  <message id="Log_Details_Label">
    <source></source>
    <translation>Alles, was Quorvan den Server fragt, und jede Antwort wird in eine Protokolldatei in diesem Ordner geschrieben. Die Hilfe zeigt, wo er auf diesem Computer liegt.</translation>
  </message>
  <message id="Err_Msg_Duplicate_Trustee">
    <source></source>
    <translation>Ein ausgewählter Benutzer oder eine ausgewählte Gruppe steht bereits in der Liste und wurde nicht verändert.</translation>
  </message>
  <message id="Err_No_Object">
    <source></source>
    <translation>Der Server kennt dieses Objekt nicht.</translation>
  </message>
  <message id="Err_MI_Create_Failed">
    <source></source>
    <translation>Die Verwaltungsverbindung zum Server konnte nicht aufgebaut werden.</translation>
  </message>
  <message id="Err_Fail_SalvagePurge">
    <source></source>
    <translation>Die Dateien konnten nicht wiederhergestellt oder endgültig gelöscht werden.</translation>
  </message>
  <message id="Err_Invalid_FileName">
    <source></source>
    <translation>Dieser Dateiname enthält Zeichen, die der Server nicht annimmt.</translation>
  </message>
  <message id="Err_Duplicate_FileName">
    <source></source>
    <translation>Eine Datei dieses Namens ist bereits vorhanden. Wählen Sie einen anderen Namen.</translation>
  </message>
  <message id="Err_Invalid_FilePath">
    <source></source>
    <translation>Dieser Pfad ist auf dem Server nicht vorhanden oder ungültig.</translation>
  </message>
  <message id="Err_Empty_FileName">
    <source></source>
    <translation>Geben Sie einen Dateinamen ein.</translation>
  </message>
  <message id="Err_NIT_Down">
    <source></source>
    <translation>Der Identitätsdienst des Servers antwortet nicht. Bitten Sie die Systemverwaltung des Servers, ihn zu starten.</translation>
  </message>
  <message id="Err_No_Privilege">
    <source></source>
    <translation>Ihnen fehlen die Rechte, die dieser Vorgang erfordert.</translation>
  </message>
  <message id="Err_Purge_Warning">
    <source></source>
    <translation>Endgültiges Löschen entfernt die Dateien für immer. Sie lassen sich danach nicht mehr wiederherstellen.</translation>
  </message>
  <message id="Err_CancelAll_Warning">
    <source></source>
    <translation>Alle noch nicht angewendeten Änderungen gehen verloren.</translation>
  </message>
  <message id="Err_Keychain_Not_Found">
    <source></source>
    <translation>Das Passwort des Servers wurde nicht im Schlüsselbund gefunden. Hängen Sie die Freigabe mit „Passwort merken“ ein und öffnen Sie Quorvan erneut.</translation>
  </message>
  <message id="Err_Pipe_Open_Failed">
    <source></source>
    <translation>Der Verwaltungsdienst des Servers konnte nicht geöffnet werden.</translation>
  </message>
  <message id="Err_Operation_Failed">
    <source></source>
    <translation>Der Server hat den Vorgang nicht abgeschlossen. Prüfen Sie die Verbindung zum Server und ob Ihr Schlüsselbund sein Passwort enthält; versuchen Sie es dann erneut. Einzelheiten stehen in der Protokolldatei.</translation>
  </message>
  <message id="Err_AD_Connect">
    <source></source>
    <translation>Active Directory ist nicht erreichbar. Prüfen Sie die Netzwerkverbindung und versuchen Sie es erneut.</translation>
  </message>
  <message id="Err_Logged_User_Morvane">
    <source></source>
    <translation>Sie sind am Server als Benutzer des Morvane-Verzeichnisses angemeldet, das diese Installation nicht unterstützt. Quorvan wird beendet.</translation>
  </message>
  <message id="Waiting_Label">
    <source></source>
    <translation>Warten auf den Server: %1 s</translation>
  </message>
  <message id="Group_Rights_Unknown_Label">
    <source></source>
    <translation>Die Rechte der Gruppen konnten nicht gelesen werden.</translation>
  </message>
  <message id="Rights_Unknown_Label">
    <source></source>
    <translation>Unbekannt: die Rechte konnten nicht gelesen werden.</translation>
  </message>
  <message id="Pending_Tip_Label">
    <source></source>
    <translation>Zeigen, was auf „Anwenden“ wartet</translation>
  </message>
  <message id="Pending_Change_Label">
    <source></source>
    <translation>%1: %2</translation>
  </message>
  <message id="Pending_Removed_Label">
    <source></source>
    <translation>%1 wird entfernt</translation>
  </message>
  <message id="Pending_Not_Shown_Label">
    <source></source>
    <translation>%1, nicht in der Liste zu sehen</translation>
  </message>
  <message id="Pending_No_Rights_Label">
    <source></source>
    <translation>keine Rechte</translation>
  </message>
  <message id="Pending_Added_Row_Label">
    <source></source>
    <translation>%1, neu, noch nicht angewendet</translation>
  </message>
  <message id="Pending_Changed_Row_Label">
    <source></source>
    <translation>%1, geändert, noch nicht angewendet</translation>
  </message>
  <message id="Applied_Label">
    <source></source>
    <translation>Angewendet um %1</translation>
  </message>
  <message id="Pending_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n offene Änderung</numerusform>
      <numerusform>%n offene Änderungen</numerusform>
    </translation>
  </message>
  <message id="Pending_More_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>und %n weitere</numerusform>
      <numerusform>und %n weitere</numerusform>
    </translation>
  </message>
  <message id="Not_Applied_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>Der Server hat %1 von %n Änderung nicht übernommen: %2</numerusform>
      <numerusform>Der Server hat %1 von %n Änderungen nicht übernommen: %2</numerusform>
    </translation>
  </message>
  <message id="Inherited_Filter_Label">
    <source></source>
    <translation>Durchgelassene Rechte</translation>
  </message>
  <message id="Attributes_Change_Label">
    <source></source>
    <translation>Attribute</translation>
  </message>
  <message id="Owner_Change_Label">
    <source></source>
    <translation>Eigentümer</translation>
  </message>
  <message id="Quota_Change_Label">
    <source></source>
    <translation>Grenze des Ordners</translation>
  </message>
  <message id="Pending_None_Label">
    <source></source>
    <translation>keine</translation>
  </message>
  <message id="Copy_title">
    <source></source>
    <translation>&amp;Kopieren</translation>
  </message>
  <message id="Export_title">
    <source></source>
    <translation>&amp;Als CSV exportieren …</translation>
  </message>
  <message id="Export_Filter_Label">
    <source></source>
    <translation>Durch Kommas getrennte Werte (*.csv)</translation>
  </message>
  <message id="Exported_Label">
    <source></source>
    <translation>Nach %1 exportiert</translation>
  </message>
  <message id="Not_Exported_Label">
    <source></source>
    <translation>%1 wurde nicht geschrieben: %2</translation>
  </message>
  <message id="No_Reload_Label">
    <source></source>
    <translation>Nicht neu gelesen: Es gibt noch nicht angewendete Änderungen. Wenden Sie sie zuerst an oder setzen Sie sie zurück.</translation>
  </message>
  <message id="Take_Off_title">
    <source></source>
    <translation>&amp;Herausnehmen</translation>
  </message>
  <message id="Take_Off_Tip_Label">
    <source></source>
    <translation>Die ausgewählten Benutzer aus dieser Liste nehmen</translation>
  </message>
  <message id="Current_Limit_Label">
    <source></source>
    <translation>derzeit %1</translation>
  </message>
  <message id="Current_Limits_Label">
    <source></source>
    <translation>derzeit %1 bis %2</translation>
  </message>
  <message id="Over_Limit_Row_Label">
    <source></source>
    <translation>%1, Grenze überschritten</translation>
  </message>
  <message id="Over_Limit_Tip_Label">
    <source></source>
    <translation>Mehr, als die Grenze erlaubt</translation>
  </message>
  <message id="Over_Limit_Next_Tip_Label">
    <source></source>
    <translation>Zum nächsten gehen</translation>
  </message>
  <message id="Over_Limit_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n Benutzer über der Grenze</numerusform>
      <numerusform>%n Benutzer über ihrer Grenze</numerusform>
    </translation>
  </message>
  <message id="Connecting_Label">
    <source></source>
    <translation>Verbinden mit %1 …</translation>
  </message>
  <message id="Connection_Lost_Label">
    <source></source>
    <translation>Die Verbindung zu %1 ist abgebrochen.</translation>
  </message>
  <message id="Connection_Lost_Reading_Label">
    <source></source>
    <translation>Nicht alles konnte gelesen werden.</translation>
  </message>
  <message id="Connection_Lost_Changes_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n Änderung wurde möglicherweise ausgeführt, möglicherweise nicht. „Anwenden“ sendet sie noch einmal; „Zurücksetzen“ liest den jetzigen Stand.</numerusform>
      <numerusform>%n Änderungen wurden möglicherweise ausgeführt, möglicherweise nicht. „Anwenden“ sendet sie noch einmal; „Zurücksetzen“ liest den jetzigen Stand.</numerusform>
    </translation>
  </message>
  <message id="Supervisor_Explained_Label">
    <source></source>
    <translation>%1: hat hier und auf allem darunter jedes Recht, gleich was sonst angekreuzt ist; kein Filter hält es auf.</translation>
  </message>
  <message id="Read_Explained_Label">
    <source></source>
    <translation>%1: Dateien öffnen und lesen.</translation>
  </message>
  <message id="Write_Explained_Label">
    <source></source>
    <translation>%1: Dateien öffnen und ihren Inhalt ändern.</translation>
  </message>
  <message id="Erase_Explained_Label">
    <source></source>
    <translation>%1: Dateien und Ordner löschen.</translation>
  </message>
  <message id="Create_Explained_Label">
    <source></source>
    <translation>%1: neue Dateien und Ordner anlegen.</translation>
  </message>
  <message id="Modify_Explained_Label">
    <source></source>
    <translation>%1: Dateien und Ordner umbenennen und ihre Attribute ändern.</translation>
  </message>
  <message id="File_Scan_Explained_Label">
    <source></source>
    <translation>%1: Dateien und Ordner in Auflistungen sehen.</translation>
  </message>
  <message id="Access_Control_Explained_Label">
    <source></source>
    <translation>%1: ändern, wer hier welche Rechte hat und was vererbt wird.</translation>
  </message>
  <message id="Row_Explained_Label">
    <source></source>
    <translation>Was in einer Zeile steht, tritt an die Stelle dessen, was derselbe Benutzer oder dieselbe Gruppe aus den übergeordneten Ordnern hat. Eine Zeile ohne Häkchen lässt davon nichts übrig.</translation>
  </message>
  <message id="Grant_title">
    <source></source>
    <translation>E&amp;rteilen</translation>
  </message>
  <message id="Take_Away_title">
    <source></source>
    <translation>E&amp;ntziehen</translation>
  </message>
  <message id="Set_Rights_title">
    <source></source>
    <translation>Rechte &amp;setzen auf</translation>
  </message>
  <message id="Preset_Read_title">
    <source></source>
    <translation>&amp;Lesen</translation>
  </message>
  <message id="Preset_Write_title">
    <source></source>
    <translation>Lesen &amp;und schreiben</translation>
  </message>
  <message id="Preset_All_title">
    <source></source>
    <translation>&amp;Alles außer Supervisor</translation>
  </message>
  <message id="Preset_None_title">
    <source></source>
    <translation>&amp;Nichts</translation>
  </message>
  <message id="Show_Log_title">
    <source></source>
    <translation>&amp;Protokolldatei anzeigen</translation>
  </message>
  <message id="No_Log_Viewer_Label">
    <source></source>
    <translation>Kein Programm hat die Protokolldatei geöffnet: %1</translation>
  </message>
  <message id="Why_Nothing_Waits_Label">
    <source></source>
    <translation>Es gibt nichts anzuwenden oder zurückzusetzen</translation>
  </message>
  <message id="Why_Needs_Rights_Label">
    <source></source>
    <translation>Erfordert hier das Recht Supervisor oder Zugriffssteuerung</translation>
  </message>
  <message id="Why_Needs_Supervisor_Label">
    <source></source>
    <translation>Erfordert hier das Recht Supervisor</translation>
  </message>
  <message id="Why_Both_Shown_Label">
    <source></source>
    <translation>Nicht, solange beide Verzeichnisdienste zusammen angezeigt werden</translation>
  </message>
  <message id="Why_Nobody_Chosen_Label">
    <source></source>
    <translation>Wählen Sie zuerst einen Benutzer oder eine Gruppe</translation>
  </message>
  <message id="Why_Not_A_User_Label">
    <source></source>
    <translation>Nur Benutzer haben Rechte durch Gruppen</translation>
  </message>
  <message id="Why_Read_Only_File_Label">
    <source></source>
    <translation>Was schreibgeschützt ist, kann weder umbenannt noch gelöscht werden</translation>
  </message>
  <message id="Why_File_Only_Label">
    <source></source>
    <translation>Komprimiert werden Dateien, nicht Ordner</translation>
  </message>
  <message id="Why_Being_Edited_Label">
    <source></source>
    <translation>Die Grenze wird gerade bearbeitet</translation>
  </message>
  <message id="Why_Nothing_Selected_Label">
    <source></source>
    <translation>Wählen Sie zuerst etwas in der Liste aus</translation>
  </message>
  <message id="Why_No_Place_Label">
    <source></source>
    <translation>Geben Sie zuerst an, wo gesucht werden soll</translation>
  </message>
  <message id="FSR_Not_Allowed_Label">
    <source></source>
    <translation>Die Pfade eines Benutzers oder einer Gruppe zu sehen erfordert hier das Recht Supervisor.</translation>
  </message>
  <message id="Group_Rights_Of_Label">
    <source></source>
    <translation>Was %1 durch Gruppen hat</translation>
  </message>
  <message id="Salvage_Purge_title">
    <source></source>
    <translation>&amp;Wiederherstellen und endgültig löschen: nicht in dieser Version</translation>
  </message>
  <message id="Path_Outside_Label">
    <source></source>
    <translation>Nicht unterhalb von %1 und daher nach „Anwenden“ hier nicht aufgeführt: %2</translation>
  </message>
  <message id="No_Password_Label">
    <source></source>
    <translation>Der Schlüsselbund enthält kein Passwort für %1. Hängen Sie eine Freigabe davon in der Dateiverwaltung mit „Passwort merken“ ein und versuchen Sie es erneut.</translation>
  </message>
  <message id="Handover_Nothing_Label">
    <source></source>
    <translation>Wählen Sie in der Dateiverwaltung eine Datei oder einen Ordner einer eingehängten Freigabe und in deren Menü „Rechte verwalten …“.</translation>
  </message>
  <message id="Handover_Several_Label">
    <source></source>
    <translation>Quorvan bearbeitet jeweils nur eine Datei oder einen Ordner.</translation>
  </message>
  <message id="Handover_No_Share_Label">
    <source></source>
    <translation>„%1“ liegt nicht auf einer eingehängten SMB-Freigabe.</translation>
  </message>
  <message id="Handover_Gone_Label">
    <source></source>
    <translation>„%1“ ist nicht mehr vorhanden.</translation>
  </message>
  <message id="Handover_Unknown_Share_Label">
    <source></source>
    <translation>Aus der Tabelle der Freigaben, shares.conf, geht nicht hervor, unter welchem Pfad des Servers „%1“ liegt.</translation>
  </message>
  <message id="Handover_Odd_Name_Label">
    <source></source>
    <translation>„%1“ hat im Pfad einen Namen, der nicht übergeben werden kann.</translation>
  </message>
  <message id="Handover_Not_Written_Label">
    <source></source>
    <translation>Die Auswahl konnte nicht übergeben werden: group.tarnix.common.plist in Ihrem Ordner für Einstellungen kann nicht geschrieben werden.</translation>
  </message>
  <message id="Handover_Not_Started_Label">
    <source></source>
    <translation>Das Programm quorvan konnte nicht gestartet werden.</translation>
  </message>
  <message id="Why_title">
    <source></source>
    <translation>&amp;Warum hat dieser Benutzer oder diese Gruppe diese Rechte …</translation>
  </message>
  <message id="Why_Button_title">
    <source></source>
    <translation>&amp;Warum …</translation>
  </message>
  <message id="Why_Button_Tip_Label">
    <source></source>
    <translation>Zeigen, woher diese Rechte kommen und was andere aufhält</translation>
  </message>
  <message id="Why_Window_Title">
    <source></source>
    <translation>Warum: %1 – %2</translation>
  </message>
  <message id="Why_Served_Label">
    <source></source>
    <translation>Was der Server hier gewährt:</translation>
  </message>
  <message id="Why_Served_More_Label">
    <source></source>
    <translation>Der Server gewährt %1; mit dem, was von hier aus zu sehen ist, lässt sich das nicht erklären.</translation>
  </message>
  <message id="Why_Served_Less_Label">
    <source></source>
    <translation>Nach dem, was von hier aus zu sehen ist, müsste %1 gewährt werden, aber der Server gewährt es nicht.</translation>
  </message>
  <message id="Why_Right_Label">
    <source></source>
    <translation>Recht</translation>
  </message>
  <message id="Why_Holds_Label">
    <source></source>
    <translation>Vorhanden</translation>
  </message>
  <message id="Why_Reason_Label">
    <source></source>
    <translation>Warum</translation>
  </message>
  <message id="Why_Way_Label">
    <source></source>
    <translation>Der Weg vom Volume zu diesem Pfad:</translation>
  </message>
  <message id="Why_Granted_Label">
    <source></source>
    <translation>Hier erteilt</translation>
  </message>
  <message id="Why_Passes_Label">
    <source></source>
    <translation>Von oben durchgelassen</translation>
  </message>
  <message id="Why_Passes_All_Label">
    <source></source>
    <translation>alles</translation>
  </message>
  <message id="Why_Not_Visible_Label">
    <source></source>
    <translation>nicht sichtbar</translation>
  </message>
  <message id="Why_Yes_Label">
    <source></source>
    <translation>ja</translation>
  </message>
  <message id="Why_No_Label">
    <source></source>
    <translation>nein</translation>
  </message>
  <message id="Why_Granted_Self_Label">
    <source></source>
    <translation>Erteilt an %1 auf %2</translation>
  </message>
  <message id="Why_Granted_Group_Label">
    <source></source>
    <translation>Erteilt auf %2 an %1, wo Mitgliedschaft besteht</translation>
  </message>
  <message id="Why_Filtered_Label">
    <source></source>
    <translation>; aufgehalten vom Filter von %1</translation>
  </message>
  <message id="Why_Replaced_Label">
    <source></source>
    <translation>; ersetzt durch die Zuweisung auf %1</translation>
  </message>
  <message id="Why_By_Supervisor_Label">
    <source></source>
    <translation>In Supervisor enthalten</translation>
  </message>
  <message id="Why_Nowhere_Label">
    <source></source>
    <translation>Nirgends erteilt</translation>
  </message>
  <message id="Why_Decides_Label">
    <source></source>
    <translation>entscheidet</translation>
  </message>
  <message id="Why_Unknown_Label">
    <source></source>
    <translation>Dies konnte nicht vom Server gelesen werden.</translation>
  </message>
  <message id="Why_Invisible_Label">
    <source></source>
    <translation>%1 konnte nicht gelesen werden; was dort und darüber erteilt ist, ist nicht sichtbar.</translation>
  </message>
  <message id="Why_Everyone_Label">
    <source></source>
    <translation>%3 hat auf %1 diese Rechte: %2. Ob das hier gilt, gibt der Verzeichnisdienst nicht an.</translation>
  </message>
  <message id="Why_No_Assignment_Label">
    <source></source>
    <translation>Wählen Sie eine Begründung, die eine Zuweisung nennt</translation>
  </message>
  <message id="Why_Go_To_title">
    <source></source>
    <translation>&amp;In Trustee-Ordnern zeigen</translation>
  </message>
  <message id="Why_Go_To_Tip_Label">
    <source></source>
    <translation>Dieses Blatt schließen und zu der Zuweisung gehen, wo sie sich ändern lässt</translation>
  </message>
  <message id="Why_Copy_title">
    <source></source>
    <translation>&amp;Als Text kopieren</translation>
  </message>
  <message id="Why_Copy_Tip_Label">
    <source></source>
    <translation>Alles für ein Ticket oder eine Prüfung kopieren</translation>
  </message>
  <message id="Help_Contents_title">
    <source></source>
    <translation>&amp;Inhalt</translation>
  </message>
  <message id="No_Guide_Label">
    <source></source>
    <translation>Das Benutzerhandbuch konnte nicht geöffnet werden: %1</translation>
  </message>
  <message id="List_Refused_Label">
    <source></source>
    <translation>Der Server hat die Auskunft verweigert.</translation>
  </message>
  <message id="List_Unreadable_Label">
    <source></source>
    <translation>Die Antwort des Servers war nicht lesbar.</translation>
  </message>
  <message id="List_Partly_Refused_Label">
    <source></source>
    <translation>Die Liste ist unvollständig: Der Server hat zumindest einen Teil verweigert.</translation>
  </message>
  <message id="List_Partly_Unreadable_Label">
    <source></source>
    <translation>Die Liste ist unvollständig: Eine Antwort des Servers war nicht lesbar.</translation>
  </message>
  <message id="Right_Stopped_Label">
    <source></source>
    <translation>%1, aufgehalten vom Filter von %2</translation>
  </message>
  <message id="Stopped_title">
    <source></source>
    <translation>Aufgehaltene Rechte &amp;markieren</translation>
  </message>
  <message id="Stopped_Tip_Label">
    <source></source>
    <translation>Die Filter der übergeordneten Ordner lesen und die Rechte markieren, die hier nicht ankommen</translation>
  </message>
  <message id="Stopped_None_Label">
    <source></source>
    <translation>Kein Filter auf dem Weg hält eines dieser Rechte auf.</translation>
  </message>
  <message id="Stopped_Unread_Label">
    <source></source>
    <translation>Nicht lesbar; was der Filter dort aufhält, ist nicht markiert: %1</translation>
  </message>
  <message id="Why_Export_title">
    <source></source>
    <translation>E&amp;xportieren …</translation>
  </message>
  <message id="Why_Export_Filter_Label">
    <source></source>
    <translation>Text (*.txt)</translation>
  </message>
  <message id="Why_Leave_Pending_Label">
    <source></source>
    <translation>Wenden Sie die Änderungen zuerst an oder setzen Sie sie zurück: beim Verlassen der Seite gingen sie verloren</translation>
  </message>
  <message id="Why_On_Server_Label">
    <source></source>
    <translation>%1 auf %2</translation>
  </message>
  <message id="Why_Unstoppable_Label">
    <source></source>
    <translation>; nichts hält es auf</translation>
  </message>
  <message id="Why_On_Way_Label">
    <source></source>
    <translation>auf seinem Weg</translation>
  </message>
  <message id="Why_Change_Label">
    <source></source>
    <translation>Was das ändern würde:</translation>
  </message>
  <message id="Why_Take_Label">
    <source></source>
    <translation>%2 auf %3 %1 entziehen</translation>
  </message>
  <message id="Why_Take_Also_Label">
    <source></source>
    <translation>Und %2 auf %3 %1 entziehen</translation>
  </message>
  <message id="Why_Give_Label">
    <source></source>
    <translation>%2 auch auf %3 %1 erteilen</translation>
  </message>
  <message id="Why_Let_Through_Label">
    <source></source>
    <translation>%1 im Filter von %2 durchlassen</translation>
  </message>
  <message id="Why_Nothing_Chosen_Label">
    <source></source>
    <translation>Wählen Sie oben ein Recht aus.</translation>
  </message>
  <message id="Why_Nothing_There_Label">
    <source></source>
    <translation>Es müsste hier oder auf einem übergeordneten Ordner erteilt werden.</translation>
  </message>
  <message id="Why_Named_title">
    <source></source>
    <translation>&amp;Warum hat %1 hier diese Rechte?</translation>
  </message>
  <message id="Stopped_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n Recht kommt hier nicht an: es ist unterstrichen, und sein Tipp nennt den Ordner, der es aufhält</numerusform>
      <numerusform>%n Rechte kommen hier nicht an: sie sind unterstrichen, und ihre Tipps nennen die Ordner, die sie aufhalten</numerusform>
    </translation>
  </message>
  <message id="Sent_In_Doubt_Label">
    <source></source>
    <translation>Gesendet; was daraus wurde, ließ sich nicht lesen: %1</translation>
  </message>
  <message id="Sent_Outside_Label">
    <source></source>
    <translation>Gesendet; was daraus wurde, steht nicht in dieser Liste: %1</translation>
  </message>
  <message id="Edit_Nobody_Label">
    <source></source>
    <translation>In der Tabelle war kein Benutzer ausgewählt.
Fügen Sie hier welche hinzu, oder schließen Sie und wählen Sie dort welche aus.</translation>
  </message>
  <message id="Why_Only_Shown_Label">
    <source></source>
    <translation>Wird hier gezeigt, nicht geändert</translation>
  </message>
  <message id="Attribute_On_Label">
    <source></source>
    <translation>ein</translation>
  </message>
  <message id="Attribute_Off_Label">
    <source></source>
    <translation>aus</translation>
  </message>
  <message id="Attributes_As_Before_Label">
    <source></source>
    <translation>wie zuvor</translation>
  </message>
  <message id="Why_One_Only_Label">
    <source></source>
    <translation>Wählen Sie zuerst eine einzelne Zeile aus</translation>
  </message>
  <message id="Quorvan_Help_Label">
    <source></source>
    <translation>Aufruf: quorvan [--help] [--version]

Zeigt und ändert die Rechte an der Datei oder dem Ordner, die in der
Dateiverwaltung gewählt wurden. Deren Menü startet das Programm; für sich
gestartet arbeitet es mit der letzten Auswahl.

  -h, --help     zeigt diesen Text und endet
  -v, --version  zeigt die Version und endet</translation>
  </message>
  <message id="Handover_Help_Label">
    <source></source>
    <translation>Aufruf: quorvan-handover PATH|URI

Öffnet Quorvan für eine Datei oder einen Ordner einer eingehängten
SMB-Freigabe: ein lokaler Pfad oder eine Adresse smb://HOST/SHARE/Pfad. Die
Menüs der Dateiverwaltungen rufen es auf.

  -h, --help     zeigt diesen Text und endet
  -v, --version  zeigt die Version und endet</translation>
  </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
  <name></name>
  <message id="AboutQuorvan_title">
    <source></source>
    <translation>À propos &amp;de Quorvan</translation>
  </message>
  <message id="Preferences_title">
    <source></source>
    <translation>&amp;Préférences…</translation>
  </message>
  <message id="Services_title">
    <source></source>
    <translation>Services</translation>
  </message>
  <message id="HideQuorvan_title">
    <source></source>
    <translation>Masquer Quorvan</translation>
  </message>
  <message id="HideOthers_title">
    <source></source>
    <translation>Masquer les autres</translation>
  </message>
  <message id="ShowAll_title">
    <source></source>
    <translation>Tout afficher</translation>
  </message>
  <message id="QuitQuorvan_title">
    <source></source>
    <translation>&amp;Quitter Quorvan</translation>
  </message>
  <message id="Help_title">
    <source></source>
    <translation>&amp;Aide</translation>
  </message>
  <message id="QuorvanHelp_title">
    <source></source>
    <translation>&amp;Aide de Quorvan</translation>
  </message>
  <message id="Application_Menu_Label">
    <source></source>
    <translation>&amp;Quorvan</translation>
  </message>
  <message id="About_Description_Label">
    <source></source>
    <translation>Gestion des droits sur les fichiers et dossiers des volumes Kelp.</translation>
  </message>
  <message id="About_Version_Label">
    <source></source>
    <translation>Version %1</translation>
  </message>
  <message id="About_Licence_Label">
    <source></source>
    <translation>Logiciel libre sous licence publique générale GNU, version 3 ou ultérieure.</translation>
  </message>
  <message id="Help_Heading_Label">
    <source></source>
    <translation>Fonctionnement de Quorvan</translation>
  </message>
  <message id="Help_Selection_Label">
    <source></source>
    <translation>Quorvan travaille sur le fichier ou le dossier choisi dans le gestionnaire de fichiers. Pour en gérer un autre, choisissez-le là-bas et ouvrez de nouveau Quorvan depuis son menu.</translation>
  </message>
  <message id="Help_Editing_Label">
    <source></source>
    <translation>Cochez ou décochez une case pour accorder ou retirer un droit. Rien n’est envoyé au serveur avant « Appliquer » ; « Rétablir » reprend ce que contient le serveur. Vous pouvez modifier les droits là où vous détenez vous-même Superviseur ou Contrôle d’accès ; partout ailleurs, la liste est en lecture seule.</translation>
  </message>
  <message id="Help_Rights_Label">
    <source></source>
    <translation>Les lettres au-dessus des cases</translation>
  </message>
  <message id="Help_Log_Label">
    <source></source>
    <translation>Ce que Quorvan demande au serveur et ce que le serveur répond est conservé dans %1</translation>
  </message>
  <message id="RM_Window_Title">
    <source></source>
    <translation>Gestion des droits</translation>
  </message>
  <message id="Trustee_Rights_Title">
    <source></source>
    <translation>Droits des ayants droit</translation>
  </message>
  <message id="File_System_Rights_Title">
    <source></source>
    <translation>Droits du système de fichiers</translation>
  </message>
  <message id="User_Quota_Title">
    <source></source>
    <translation>Quotas des utilisateurs</translation>
  </message>
  <message id="Information_Title">
    <source></source>
    <translation>Informations</translation>
  </message>
  <message id="Settings_Title">
    <source></source>
    <translation>Paramètres</translation>
  </message>
  <message id="Trustee_Rights_Description_Label">
    <source></source>
    <translation>Qui peut faire quoi ici : les ayants droit et leurs droits</translation>
  </message>
  <message id="File_System_Rights_Description_Label">
    <source></source>
    <translation>Tous les chemins situés dessous où un utilisateur ou un groupe détient des droits</translation>
  </message>
  <message id="User_Quota_Description_Label">
    <source></source>
    <translation>L’espace que chaque utilisateur peut occuper sur le volume</translation>
  </message>
  <message id="Information_Description_Label">
    <source></source>
    <translation>Attributs, propriétaire et quota du dossier</translation>
  </message>
  <message id="Settings_Description_Label">
    <source></source>
    <translation>Afficher les ayants droit des deux annuaires</translation>
  </message>
  <message id="Managed_Path_Label">
    <source></source>
    <translation>Chemin géré</translation>
  </message>
  <message id="Try_Again_title">
    <source></source>
    <translation>&amp;Réessayer</translation>
  </message>
  <message id="Try_Again_Tip_Label">
    <source></source>
    <translation>Demander de nouveau au serveur qui est connecté</translation>
  </message>
  <message id="Managed_Server_Label">
    <source></source>
    <translation>sur %1</translation>
  </message>
  <message id="Rights_Label">
    <source></source>
    <translation>Droits</translation>
  </message>
  <message id="Inherited_Rights_Label">
    <source></source>
    <translation>Filtre des droits hérités</translation>
  </message>
  <message id="Effective_Rights_Label">
    <source></source>
    <translation>Droits effectifs</translation>
  </message>
  <message id="Trustee_Directories_Label">
    <source></source>
    <translation>Dossiers des ayants droit</translation>
  </message>
  <message id="Rights_Tip_Label">
    <source></source>
    <translation>Les ayants droit de ce chemin et leurs droits</translation>
  </message>
  <message id="Inherited_Rights_Tip_Label">
    <source></source>
    <translation>Les droits que ce chemin laisse passer depuis les dossiers parents</translation>
  </message>
  <message id="Effective_Rights_Tip_Label">
    <source></source>
    <translation>Ce qu’un ayant droit peut réellement faire ici</translation>
  </message>
  <message id="Trustee_Directories_Tip_Label">
    <source></source>
    <translation>Les ayants droit des dossiers parents et des sous-dossiers</translation>
  </message>
  <message id="Close_title">
    <source></source>
    <translation>&amp;Fermer</translation>
  </message>
  <message id="Close_Tip_Label">
    <source></source>
    <translation>Retour à la vue d’ensemble</translation>
  </message>
  <message id="Col_UserGrp_Name">
    <source></source>
    <translation>Utilisateur ou groupe</translation>
  </message>
  <message id="Add_Remove_Label">
    <source></source>
    <translation>Ayants droit :</translation>
  </message>
  <message id="Apply_title">
    <source></source>
    <translation>A&amp;ppliquer</translation>
  </message>
  <message id="Revert_title">
    <source></source>
    <translation>&amp;Rétablir</translation>
  </message>
  <message id="Rights_Label_Title">
    <source></source>
    <translation>Les ayants droit et leurs droits</translation>
  </message>
  <message id="Morvane_Trustee_Label">
    <source></source>
    <translation>Afficher aussi les ayants &amp;droit Morvane</translation>
  </message>
  <message id="AD_Trustee_Label">
    <source></source>
    <translation>Afficher aussi &amp;les ayants droit Active Directory</translation>
  </message>
  <message id="Both_Trustee_Label">
    <source></source>
    <translation>Afficher &amp;les ayants droit des deux annuaires</translation>
  </message>
  <message id="Supervisor_Label">
    <source></source>
    <translation>Superviseur</translation>
  </message>
  <message id="Read_Label">
    <source></source>
    <translation>Lecture</translation>
  </message>
  <message id="Write_Label">
    <source></source>
    <translation>Écriture</translation>
  </message>
  <message id="Erase_Label">
    <source></source>
    <translation>Effacement</translation>
  </message>
  <message id="Create_Label">
    <source></source>
    <translation>Création</translation>
  </message>
  <message id="Modify_Label">
    <source></source>
    <translation>Modification</translation>
  </message>
  <message id="File_Scan_Label">
    <source></source>
    <translation>Affichage</translation>
  </message>
  <message id="Access_Control_Label">
    <source></source>
    <translation>Contrôle d’accès</translation>
  </message>
  <message id="Right_Ticked_Label">
    <source></source>
    <translation>%1 : accordé</translation>
  </message>
  <message id="Right_Unticked_Label">
    <source></source>
    <translation>%1 : non accordé</translation>
  </message>
  <message id="Search_Placeholder_Label">
    <source></source>
    <translation>Rechercher par nom</translation>
  </message>
  <message id="Search_Tip_Label">
    <source></source>
    <translation>Saisissez une partie du nom. Dans une recherche du nom entier, * remplace plusieurs caractères et ? un seul.</translation>
  </message>
  <message id="No_Trustees_Label">
    <source></source>
    <translation>Aucun ayant droit sur ce chemin.</translation>
  </message>
  <message id="No_Match_Label">
    <source></source>
    <translation>Aucun nom ne correspond à « %1 ».</translation>
  </message>
  <message id="Rights_Read_Only_Label">
    <source></source>
    <translation>Vous pouvez consulter ces droits mais pas les modifier : il faut ici le droit Superviseur ou Contrôle d’accès.</translation>
  </message>
  <message id="Add_title">
    <source></source>
    <translation>A&amp;jouter…</translation>
  </message>
  <message id="Add_Tip_Label">
    <source></source>
    <translation>Choisir les utilisateurs et groupes qui deviennent ayants droit de ce chemin</translation>
  </message>
  <message id="Remove_title">
    <source></source>
    <translation>&amp;Supprimer</translation>
  </message>
  <message id="Remove_Tip_Label">
    <source></source>
    <translation>Retirer de ce chemin les ayants droit sélectionnés</translation>
  </message>
  <message id="Revert_Tip_Label">
    <source></source>
    <translation>Abandonner toutes les modifications non encore appliquées</translation>
  </message>
  <message id="Apply_Tip_Label">
    <source></source>
    <translation>Envoyer toutes les modifications au serveur</translation>
  </message>
  <message id="Path_Label">
    <source></source>
    <translation>Chemin</translation>
  </message>
  <message id="Owner_Label">
    <source></source>
    <translation>Propriétaire</translation>
  </message>
  <message id="No_Owner_Label">
    <source></source>
    <translation>Personne</translation>
  </message>
  <message id="Owner_Gone_Label">
    <source></source>
    <translation>Utilisateur inconnu (%1)</translation>
  </message>
  <message id="Change_Owner_title">
    <source></source>
    <translation>C&amp;hanger…</translation>
  </message>
  <message id="Change_Owner_Tip_Label">
    <source></source>
    <translation>Choisir l’utilisateur à qui appartient ce fichier ou ce dossier</translation>
  </message>
  <message id="Information_Read_Only_Label">
    <source></source>
    <translation>Changer le propriétaire ou la limite exige ici le droit Superviseur. C’est le serveur qui décide si vous pouvez modifier les attributs.</translation>
  </message>
  <message id="KELP_Attr_Label">
    <source></source>
    <translation>Attributs &amp;Kelp</translation>
  </message>
  <message id="Read_Only_Label">
    <source></source>
    <translation>&amp;Lecture seule</translation>
  </message>
  <message id="Read_Only_Tip_Label">
    <source></source>
    <translation>Le contenu ne peut pas être modifié, ni l’élément renommé ou supprimé</translation>
  </message>
  <message id="Hidden_Label">
    <source></source>
    <translation>&amp;Caché</translation>
  </message>
  <message id="Hidden_Tip_Label">
    <source></source>
    <translation>Absent des listes ordinaires</translation>
  </message>
  <message id="Archive_Label">
    <source></source>
    <translation>Arch&amp;ive</translation>
  </message>
  <message id="Archive_Tip_Label">
    <source></source>
    <translation>Modifié depuis la dernière sauvegarde</translation>
  </message>
  <message id="Purge_Immediately_Label">
    <source></source>
    <translation>Pur&amp;ger immédiatement</translation>
  </message>
  <message id="Purge_Immediately_Tip_Label">
    <source></source>
    <translation>Perdu définitivement une fois supprimé ; aucune récupération possible</translation>
  </message>
  <message id="Rename_Inhibit_Label">
    <source></source>
    <translation>R&amp;enommage interdit</translation>
  </message>
  <message id="Rename_Inhibit_Tip_Label">
    <source></source>
    <translation>Ne peut pas être renommé ; toujours le cas en lecture seule</translation>
  </message>
  <message id="Delete_Inhibit_Label">
    <source></source>
    <translation>S&amp;uppression interdite</translation>
  </message>
  <message id="Delete_Inhibit_Tip_Label">
    <source></source>
    <translation>Ne peut pas être supprimé ; toujours le cas en lecture seule</translation>
  </message>
  <message id="Immediate_Compression_Label">
    <source></source>
    <translation>C&amp;ompression immédiate</translation>
  </message>
  <message id="Immediate_Compression_Tip_Label">
    <source></source>
    <translation>Compressé dès que le serveur en a le temps</translation>
  </message>
  <message id="Dont_Compress_Label">
    <source></source>
    <translation>&amp;Ne pas compresser</translation>
  </message>
  <message id="Dont_Compress_Tip_Label">
    <source></source>
    <translation>Jamais compressé ; pour les fichiers seulement</translation>
  </message>
  <message id="Directory_Quota_Label">
    <source></source>
    <translation>Quota &amp;du dossier</translation>
  </message>
  <message id="Limit_Label">
    <source></source>
    <translation>Limite</translation>
  </message>
  <message id="Used_Label">
    <source></source>
    <translation>Utilisé</translation>
  </message>
  <message id="Available_Label">
    <source></source>
    <translation>Disponible</translation>
  </message>
  <message id="Unit_Label">
    <source></source>
    <translation>Unité de la limite</translation>
  </message>
  <message id="Edit_Limit_title">
    <source></source>
    <translation>&amp;Modifier la limite</translation>
  </message>
  <message id="Edit_Limit_Tip_Label">
    <source></source>
    <translation>Saisir une autre limite pour ce dossier</translation>
  </message>
  <message id="Remove_Limit_title">
    <source></source>
    <translation>&amp;Supprimer la limite</translation>
  </message>
  <message id="Remove_Limit_Tip_Label">
    <source></source>
    <translation>Laisser ce dossier grandir autant que le volume le permet</translation>
  </message>
  <message id="Quota_Bar_Label">
    <source></source>
    <translation>Part utilisée de la limite</translation>
  </message>
  <message id="Quota_Usage_Label">
    <source></source>
    <translation>%1 % utilisés</translation>
  </message>
  <message id="Quota_Exceeded_Label">
    <source></source>
    <translation>Limite dépassée</translation>
  </message>
  <message id="Salvage_Title">
    <source></source>
    <translation>Récupérer</translation>
  </message>
  <message id="Purge_Title">
    <source></source>
    <translation>Purger</translation>
  </message>
  <message id="Salvage_Description_Label">
    <source></source>
    <translation>Récupérer des fichiers supprimés</translation>
  </message>
  <message id="Purge_Description_Label">
    <source></source>
    <translation>Éliminer des fichiers supprimés</translation>
  </message>
  <message id="Salvage_Purpose_Label">
    <source></source>
    <translation>Les fichiers supprimés sous ce chemin restent sur le volume jusqu’à leur purge. D’ici là, ils peuvent être récupérés avec leurs ayants droit et leurs attributs.</translation>
  </message>
  <message id="Purge_Purpose_Label">
    <source></source>
    <translation>Les fichiers supprimés sous ce chemin restent sur le volume jusqu’à leur purge. La purge libère leur espace ; ils ne peuvent plus être récupérés ensuite.</translation>
  </message>
  <message id="Salvage_Purge_Nothing_Sent_Label">
    <source></source>
    <translation>Cette version ne fait encore ni l’un ni l’autre : rien sur cette page n’est envoyé au serveur.</translation>
  </message>
  <message id="Deleted_Files_Tip_Label">
    <source></source>
    <translation>Ce que cette version peut faire des fichiers supprimés</translation>
  </message>
  <message id="More_Information_title">
    <source></source>
    <translation>&amp;Plus d’informations…</translation>
  </message>
  <message id="More_Information_Title">
    <source></source>
    <translation>Plus d’informations</translation>
  </message>
  <message id="Salvage_Purge_More_Label">
    <source></source>
    <translation>Le serveur conserve un fichier supprimé jusqu’à ce que son espace soit nécessaire ou que quelqu’un le purge. La récupération le remet dans son dossier ; la purge l’élimine définitivement. Les fichiers dotés de l’attribut « Purger immédiatement » ne sont jamais conservés.

Quorvan ne peut pas encore récupérer ni purger des fichiers et n’envoie rien au serveur ici. En attendant une version qui le puisse, utilisez les outils de gestion du serveur.</translation>
  </message>
  <message id="Users_with_Quota_Label">
    <source></source>
    <translation>Utilisateurs ayant un quota sur ce volume</translation>
  </message>
  <message id="User_Name_Label">
    <source></source>
    <translation>Utilisateur</translation>
  </message>
  <message id="Col_User_Name">
    <source></source>
    <translation>Nom</translation>
  </message>
  <message id="Quota_Limit_Label">
    <source></source>
    <translation>&amp;Limite pour chacun :</translation>
  </message>
  <message id="No_User_Quotas_Label">
    <source></source>
    <translation>Aucun utilisateur n’a de quota sur ce volume.</translation>
  </message>
  <message id="User_Quotas_Unknown_Label">
    <source></source>
    <translation>Les quotas n’ont pas pu être lus sur le serveur.</translation>
  </message>
  <message id="User_Quota_Read_Only_Label">
    <source></source>
    <translation>Vous pouvez consulter ces quotas mais pas les modifier : il faut ici le droit Superviseur.</translation>
  </message>
  <message id="Edit_title">
    <source></source>
    <translation>&amp;Modifier…</translation>
  </message>
  <message id="Add_User_Quota_Tip_Label">
    <source></source>
    <translation>Choisir des utilisateurs et limiter leur espace</translation>
  </message>
  <message id="Edit_User_Quota_Tip_Label">
    <source></source>
    <translation>Donner une autre limite aux utilisateurs sélectionnés</translation>
  </message>
  <message id="Remove_User_Quota_Tip_Label">
    <source></source>
    <translation>Lever la limite des utilisateurs sélectionnés</translation>
  </message>
  <message id="Add_User_Quota_Title">
    <source></source>
    <translation>Ajouter un quota d’utilisateur</translation>
  </message>
  <message id="Edit_User_Quota_Title">
    <source></source>
    <translation>Modifier le quota d’utilisateur</translation>
  </message>
  <message id="Add_Users_title">
    <source></source>
    <translation>Ajouter &amp;des utilisateurs…</translation>
  </message>
  <message id="Add_Users_Tip_Label">
    <source></source>
    <translation>Choisir d’autres utilisateurs soumis à cette limite</translation>
  </message>
  <message id="No_Users_Chosen_Label">
    <source></source>
    <translation>Aucun utilisateur choisi pour l’instant.</translation>
  </message>
  <message id="User_Quota_Unlimited">
    <source></source>
    <translation>Illimité</translation>
  </message>
  <message id="User_Quota_Not_Set">
    <source></source>
    <translation>Non défini</translation>
  </message>
  <message id="User_Quota_Maximum">
    <source></source>
    <translation>Autant que le volume en offre</translation>
  </message>
  <message id="Invalid_Quota_Limit">
    <source></source>
    <translation>Une limite est un nombre entier, par exemple 5. Choisissez son unité dans la liste voisine.</translation>
  </message>
  <message id="B">
    <source></source>
    <translation>o</translation>
  </message>
  <message id="KB">
    <source></source>
    <translation>Ko</translation>
  </message>
  <message id="MB">
    <source></source>
    <translation>Mo</translation>
  </message>
  <message id="GB">
    <source></source>
    <translation>Go</translation>
  </message>
  <message id="TB">
    <source></source>
    <translation>To</translation>
  </message>
  <message id="PB">
    <source></source>
    <translation>Po</translation>
  </message>
  <message id="Inherited_Deselect_Label">
    <source></source>
    <translation>Un droit coché passe des dossiers parents jusqu’à ce chemin. Décochez une case pour arrêter ce droit ici.</translation>
  </message>
  <message id="Inherited_Box_Tip_Label">
    <source></source>
    <translation>Coché : %1 passe depuis les dossiers parents. Décoché : ce droit s’arrête ici.</translation>
  </message>
  <message id="Inherited_Supervisor_Tip_Label">
    <source></source>
    <translation>Aucun filtre n’arrête le droit Superviseur.</translation>
  </message>
  <message id="Effective_Label">
    <source></source>
    <translation>Ce que les ayants droit de ce chemin peuvent réellement faire ici :</translation>
  </message>
  <message id="Select_Effective_Trustee_Label">
    <source></source>
    <translation>Ce que tout autre utilisateur ou groupe peut réellement faire ici :</translation>
  </message>
  <message id="User_Group_Label">
    <source></source>
    <translation>Utilisateur ou groupe :</translation>
  </message>
  <message id="Nobody_Chosen_Label">
    <source></source>
    <translation>Aucun choix pour l’instant</translation>
  </message>
  <message id="Choose_title">
    <source></source>
    <translation>&amp;Choisir…</translation>
  </message>
  <message id="Choose_Effective_Tip_Label">
    <source></source>
    <translation>Choisir l’utilisateur ou le groupe dont vous voulez voir les droits effectifs</translation>
  </message>
  <message id="Choose_Needs_Rights_Label">
    <source></source>
    <translation>Choisir un utilisateur ou un groupe exige ici le droit Superviseur ou Contrôle d’accès</translation>
  </message>
  <message id="Subdirectories_Label">
    <source></source>
    <translation>Ayants droit sur ce chemin et tout ce qu’il contient :</translation>
  </message>
  <message id="Parent_dir_Label">
    <source></source>
    <translation>Ayants droit sur ce chemin et les dossiers parents :</translation>
  </message>
  <message id="Remove_Trustee_Label">
    <source></source>
    <translation>Supprimer des ayants droit :</translation>
  </message>
  <message id="Remove_Parent_title">
    <source></source>
    <translation>S&amp;upprimer</translation>
  </message>
  <message id="Col_Path">
    <source></source>
    <translation>Chemin</translation>
  </message>
  <message id="Search_Paths_Placeholder_Label">
    <source></source>
    <translation>Rechercher par nom ou chemin</translation>
  </message>
  <message id="Search_Sub_Label">
    <source></source>
    <translation>Rechercher par nom ou chemin dans ce chemin et tout ce qu’il contient</translation>
  </message>
  <message id="Search_Parent_Label">
    <source></source>
    <translation>Rechercher par nom ou chemin dans ce chemin et les dossiers parents</translation>
  </message>
  <message id="No_Sub_Trustees_Label">
    <source></source>
    <translation>Aucun ayant droit sur ce chemin ni dessous.</translation>
  </message>
  <message id="No_Parent_Trustees_Label">
    <source></source>
    <translation>Aucun ayant droit sur ce chemin ni sur les dossiers parents.</translation>
  </message>
  <message id="No_Match_Path_Label">
    <source></source>
    <translation>Aucun nom ni chemin ne correspond à « %1 ».</translation>
  </message>
  <message id="FSR_Label_Title">
    <source></source>
    <translation>Tous les chemins situés dessous dont un utilisateur ou un groupe est ayant droit :</translation>
  </message>
  <message id="Choose_FSR_Tip_Label">
    <source></source>
    <translation>Choisir l’utilisateur ou le groupe dont vous voulez voir les chemins</translation>
  </message>
  <message id="Group_Rights">
    <source></source>
    <translation>&amp;Droits des groupes…</translation>
  </message>
  <message id="Group_Rights_Tip_Label">
    <source></source>
    <translation>Afficher ce que cet utilisateur détient par ses groupes</translation>
  </message>
  <message id="Add_Remove_Path_Label">
    <source></source>
    <translation>Chemins :</translation>
  </message>
  <message id="Add_Path_Tip_Label">
    <source></source>
    <translation>Choisir les fichiers et dossiers dont cet utilisateur ou ce groupe devient ayant droit</translation>
  </message>
  <message id="Remove_Path_Tip_Label">
    <source></source>
    <translation>Retirer cet utilisateur ou ce groupe des chemins sélectionnés</translation>
  </message>
  <message id="FSR_Read_Only_Label">
    <source></source>
    <translation>Choisir un utilisateur ou un groupe exige le droit Superviseur sur ce chemin.</translation>
  </message>
  <message id="FSR_Nobody_Label">
    <source></source>
    <translation>Choisissez un utilisateur ou un groupe pour voir ses chemins.</translation>
  </message>
  <message id="FSR_No_Paths_Label">
    <source></source>
    <translation>N’est ayant droit d’aucun chemin situé dessous.</translation>
  </message>
  <message id="Group_Rights_Title">
    <source></source>
    <translation>Droits par les groupes</translation>
  </message>
  <message id="Col_Group">
    <source></source>
    <translation>Groupe</translation>
  </message>
  <message id="No_Group_Rights_Label">
    <source></source>
    <translation>Aucun groupe de cet utilisateur n’est ayant droit d’un chemin situé dessous.</translation>
  </message>
  <message id="Browse_Folder_Title">
    <source></source>
    <translation>Choisir des fichiers et des dossiers</translation>
  </message>
  <message id="Browse_Folder_Root_Label">
    <source></source>
    <translation>Volume monté</translation>
  </message>
  <message id="Volume_Not_Mounted_Label">
    <source></source>
    <translation>Le volume %1 n’est pas monté sur cet ordinateur. Ouvrez-le dans le gestionnaire de fichiers, puis réessayez.</translation>
  </message>
  <message id="Warning_Title">
    <source></source>
    <translation>Avertissement</translation>
  </message>
  <message id="Error_Title">
    <source></source>
    <translation>Erreur</translation>
  </message>
  <message id="View_label">
    <source></source>
    <translation>A&amp;ffichage :</translation>
  </message>
  <message id="Node_label">
    <source></source>
    <translation>&amp;Domaine :</translation>
  </message>
  <message id="Node_label_morvane">
    <source></source>
    <translation>&amp;Sous :</translation>
  </message>
  <message id="Users_Title">
    <source></source>
    <translation>Utilisateurs</translation>
  </message>
  <message id="Groups_Title">
    <source></source>
    <translation>Groupes</translation>
  </message>
  <message id="Containers_Title">
    <source></source>
    <translation>Conteneurs</translation>
  </message>
  <message id="Fetch_title">
    <source></source>
    <translation>&amp;Obtenir</translation>
  </message>
  <message id="Fetch_Tip_Label">
    <source></source>
    <translation>Interroger l’annuaire</translation>
  </message>
  <message id="Select_title">
    <source></source>
    <translation>Sé&amp;lectionner</translation>
  </message>
  <message id="Cancel_title">
    <source></source>
    <translation>&amp;Annuler</translation>
  </message>
  <message id="OK_title">
    <source></source>
    <translation>&amp;OK</translation>
  </message>
  <message id="Browse_AD_Title">
    <source></source>
    <translation>Choisir dans Active Directory</translation>
  </message>
  <message id="Browse_Morvane_Title">
    <source></source>
    <translation>Choisir dans l’arbre Morvane</translation>
  </message>
  <message id="Browse_List_Label">
    <source></source>
    <translation>Utilisateurs et groupes trouvés</translation>
  </message>
  <message id="Browse_Choose_Label">
    <source></source>
    <translation>Choisir…</translation>
  </message>
  <message id="Browse_AD_Start_Label">
    <source></source>
    <translation>Choisissez quoi afficher et dans quel domaine, puis cliquez sur « Obtenir ».</translation>
  </message>
  <message id="Browse_Morvane_Start_Label">
    <source></source>
    <translation>Choisissez quoi afficher, saisissez où chercher (par exemple .O=kestmoor.T=tree.) et cliquez sur « Obtenir ».</translation>
  </message>
  <message id="No_Domains_Label">
    <source></source>
    <translation>Cet ordinateur ne connaît aucun domaine Active Directory.</translation>
  </message>
  <message id="Domain_Silent_Label">
    <source></source>
    <translation>%1 ne répond pas. Le journal contient les détails.</translation>
  </message>
  <message id="No_Users_In_Label">
    <source></source>
    <translation>Aucun utilisateur trouvé dans %1.</translation>
  </message>
  <message id="No_Groups_In_Label">
    <source></source>
    <translation>Aucun groupe trouvé dans %1.</translation>
  </message>
  <message id="No_Users_Below_Label">
    <source></source>
    <translation>Aucun utilisateur trouvé sous %1</translation>
  </message>
  <message id="No_Groups_Below_Label">
    <source></source>
    <translation>Aucun groupe trouvé sous %1</translation>
  </message>
  <message id="No_Containers_Below_Label">
    <source></source>
    <translation>Aucun conteneur trouvé sous %1</translation>
  </message>
  <message id="No_Users_Label">
    <source></source>
    <translation>Aucun utilisateur trouvé.</translation>
  </message>
  <message id="No_Groups_Label">
    <source></source>
    <translation>Aucun groupe trouvé.</translation>
  </message>
  <message id="Identify_Source_Title">
    <source></source>
    <translation>Choisir un annuaire</translation>
  </message>
  <message id="Select_source_of_identity_Label">
    <source></source>
    <translation>Dans quel annuaire voulez-vous choisir ?</translation>
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
    <translation>Lorsque ce réglage est actif, les listes montrent les ayants droit des deux annuaires et, à chaque choix d’un utilisateur ou d’un groupe, on vous demande d’abord dans quel annuaire chercher. Il reste en vigueur jusqu’à ce que vous quittiez Quorvan.</translation>
  </message>
  <message id="Settings_Read_Only_Label">
    <source></source>
    <translation>Seuls les utilisateurs qui détiennent le droit Superviseur ou Contrôle d’accès sur ce chemin peuvent modifier ce réglage.</translation>
  </message>
  <message id="Log_Details_Label">
    <source></source>
    <translation>Tout ce que Quorvan demande au serveur, et chaque réponse, est écrit dans un journal de ce dossier. L’aide indique où il se trouve sur cet ordinateur.</translation>
  </message>
  <message id="Err_Msg_Duplicate_Trustee">
    <source></source>
    <translation>Un utilisateur ou un groupe que vous avez choisi est déjà dans la liste et a été laissé tel quel.</translation>
  </message>
  <message id="Err_No_Object">
    <source></source>
    <translation>Le serveur ne connaît pas cet objet.</translation>
  </message>
  <message id="Err_MI_Create_Failed">
    <source></source>
    <translation>La connexion de gestion au serveur n’a pas pu être établie.</translation>
  </message>
  <message id="Err_Fail_SalvagePurge">
    <source></source>
    <translation>Les fichiers n’ont pas pu être récupérés ou purgés.</translation>
  </message>
  <message id="Err_Invalid_FileName">
    <source></source>
    <translation>Ce nom de fichier contient des caractères que le serveur n’accepte pas.</translation>
  </message>
  <message id="Err_Duplicate_FileName">
    <source></source>
    <translation>Un fichier de ce nom existe déjà. Choisissez un autre nom.</translation>
  </message>
  <message id="Err_Invalid_FilePath">
    <source></source>
    <translation>Ce chemin n’existe pas sur le serveur ou n’est pas valide.</translation>
  </message>
  <message id="Err_Empty_FileName">
    <source></source>
    <translation>Saisissez un nom de fichier.</translation>
  </message>
  <message id="Err_NIT_Down">
    <source></source>
    <translation>Le service d’identité du serveur ne répond pas. Demandez à l’administrateur du serveur de le démarrer.</translation>
  </message>
  <message id="Err_No_Privilege">
    <source></source>
    <translation>Vous ne détenez pas les droits nécessaires à cette opération.</translation>
  </message>
  <message id="Err_Purge_Warning">
    <source></source>
    <translation>La purge élimine définitivement les fichiers. Ils ne peuvent plus être récupérés ensuite.</translation>
  </message>
  <message id="Err_CancelAll_Warning">
    <source></source>
    <translation>Toutes les modifications non encore appliquées seront perdues.</translation>
  </message>
  <message id="Err_Keychain_Not_Found">
    <source></source>
    <translation>Le mot de passe du serveur est absent du trousseau. Montez le partage avec « Se souvenir du mot de passe », puis ouvrez de nouveau Quorvan.</translation>
  </message>
  <message id="Err_Pipe_Open_Failed">
    <source></source>
    <translation>Le service de gestion du serveur n’a pas pu être ouvert.</translation>
  </message>
  <message id="Err_Operation_Failed">
    <source></source>
    <translation>Le serveur n’a pas terminé l’opération. Vérifiez la connexion au serveur et la présence de son mot de passe dans votre trousseau, puis réessayez. Le journal contient les détails.</translation>
  </message>
  <message id="Err_AD_Connect">
    <source></source>
    <translation>Active Directory est injoignable. Vérifiez la connexion réseau et réessayez.</translation>
  </message>
  <message id="Err_Logged_User_Morvane">
    <source></source>
    <translation>Vous êtes connecté au serveur comme utilisateur de l’annuaire Morvane, que cette installation ne prend pas en charge. Quorvan va quitter.</translation>
  </message>
  <message id="Waiting_Label">
    <source></source>
    <translation>En attente du serveur : %1 s</translation>
  </message>
  <message id="Group_Rights_Unknown_Label">
    <source></source>
    <translation>Les droits des groupes n’ont pas pu être lus.</translation>
  </message>
  <message id="Rights_Unknown_Label">
    <source></source>
    <translation>Inconnu : les droits n’ont pas pu être lus.</translation>
  </message>
  <message id="Pending_Tip_Label">
    <source></source>
    <translation>Montrer ce qui attend « Appliquer »</translation>
  </message>
  <message id="Pending_Change_Label">
    <source></source>
    <translation>%1 : %2</translation>
  </message>
  <message id="Pending_Removed_Label">
    <source></source>
    <translation>%1 sera supprimé</translation>
  </message>
  <message id="Pending_Not_Shown_Label">
    <source></source>
    <translation>%1, absent de la liste affichée</translation>
  </message>
  <message id="Pending_No_Rights_Label">
    <source></source>
    <translation>aucun droit</translation>
  </message>
  <message id="Pending_Added_Row_Label">
    <source></source>
    <translation>%1, nouveau, en attente</translation>
  </message>
  <message id="Pending_Changed_Row_Label">
    <source></source>
    <translation>%1, modifié, en attente</translation>
  </message>
  <message id="Applied_Label">
    <source></source>
    <translation>Appliqué à %1</translation>
  </message>
  <message id="Pending_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n modification en attente</numerusform>
      <numerusform>%n modifications en attente</numerusform>
    </translation>
  </message>
  <message id="Pending_More_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>et %n autre</numerusform>
      <numerusform>et %n autres</numerusform>
    </translation>
  </message>
  <message id="Not_Applied_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>Le serveur a refusé %1 modification sur %n : %2</numerusform>
      <numerusform>Le serveur a refusé %1 modifications sur %n : %2</numerusform>
    </translation>
  </message>
  <message id="Inherited_Filter_Label">
    <source></source>
    <translation>Droits qui passent</translation>
  </message>
  <message id="Attributes_Change_Label">
    <source></source>
    <translation>Attributs</translation>
  </message>
  <message id="Owner_Change_Label">
    <source></source>
    <translation>Propriétaire</translation>
  </message>
  <message id="Quota_Change_Label">
    <source></source>
    <translation>Limite du dossier</translation>
  </message>
  <message id="Pending_None_Label">
    <source></source>
    <translation>aucun</translation>
  </message>
  <message id="Copy_title">
    <source></source>
    <translation>&amp;Copier</translation>
  </message>
  <message id="Export_title">
    <source></source>
    <translation>&amp;Exporter en CSV…</translation>
  </message>
  <message id="Export_Filter_Label">
    <source></source>
    <translation>Valeurs séparées par des virgules (*.csv)</translation>
  </message>
  <message id="Exported_Label">
    <source></source>
    <translation>Exporté vers %1</translation>
  </message>
  <message id="Not_Exported_Label">
    <source></source>
    <translation>%1 n’a pas été écrit : %2</translation>
  </message>
  <message id="No_Reload_Label">
    <source></source>
    <translation>Pas relu : des modifications sont en attente. Appliquez-les ou rétablissez d’abord.</translation>
  </message>
  <message id="Take_Off_title">
    <source></source>
    <translation>Ô&amp;ter</translation>
  </message>
  <message id="Take_Off_Tip_Label">
    <source></source>
    <translation>Ôter de cette liste les utilisateurs sélectionnés</translation>
  </message>
  <message id="Current_Limit_Label">
    <source></source>
    <translation>actuellement %1</translation>
  </message>
  <message id="Current_Limits_Label">
    <source></source>
    <translation>actuellement de %1 à %2</translation>
  </message>
  <message id="Over_Limit_Row_Label">
    <source></source>
    <translation>%1, limite dépassée</translation>
  </message>
  <message id="Over_Limit_Tip_Label">
    <source></source>
    <translation>Plus que la limite ne le permet</translation>
  </message>
  <message id="Over_Limit_Next_Tip_Label">
    <source></source>
    <translation>Aller au suivant</translation>
  </message>
  <message id="Over_Limit_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n utilisateur dépasse sa limite</numerusform>
      <numerusform>%n utilisateurs dépassent leur limite</numerusform>
    </translation>
  </message>
  <message id="Connecting_Label">
    <source></source>
    <translation>Connexion à %1…</translation>
  </message>
  <message id="Connection_Lost_Label">
    <source></source>
    <translation>La connexion à %1 a été perdue.</translation>
  </message>
  <message id="Connection_Lost_Reading_Label">
    <source></source>
    <translation>Tout n’a pas pu être lu.</translation>
  </message>
  <message id="Connection_Lost_Changes_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n modification a peut-être été effectuée, peut-être pas. « Appliquer » l’envoie de nouveau ; « Rétablir » relit l’état actuel.</numerusform>
      <numerusform>%n modifications ont peut-être été effectuées, peut-être pas. « Appliquer » les envoie de nouveau ; « Rétablir » relit l’état actuel.</numerusform>
    </translation>
  </message>
  <message id="Supervisor_Explained_Label">
    <source></source>
    <translation>%1 : donne tous les droits ici et sur tout ce qui est dessous, quelles que soient les autres cases ; aucun filtre ne l’arrête.</translation>
  </message>
  <message id="Read_Explained_Label">
    <source></source>
    <translation>%1 : ouvrir des fichiers et les lire.</translation>
  </message>
  <message id="Write_Explained_Label">
    <source></source>
    <translation>%1 : ouvrir des fichiers et en modifier le contenu.</translation>
  </message>
  <message id="Erase_Explained_Label">
    <source></source>
    <translation>%1 : supprimer des fichiers et des dossiers.</translation>
  </message>
  <message id="Create_Explained_Label">
    <source></source>
    <translation>%1 : créer des fichiers et des dossiers.</translation>
  </message>
  <message id="Modify_Explained_Label">
    <source></source>
    <translation>%1 : renommer des fichiers et des dossiers et modifier leurs attributs.</translation>
  </message>
  <message id="File_Scan_Explained_Label">
    <source></source>
    <translation>%1 : voir les fichiers et les dossiers dans les listes.</translation>
  </message>
  <message id="Access_Control_Explained_Label">
    <source></source>
    <translation>%1 : modifier qui détient quels droits ici, et ce qui est hérité.</translation>
  </message>
  <message id="Row_Explained_Label">
    <source></source>
    <translation>Ce que dit une ligne remplace ce que le même utilisateur ou groupe tient des dossiers parents. Une ligne sans coche n’en laisse rien.</translation>
  </message>
  <message id="Grant_title">
    <source></source>
    <translation>&amp;Accorder</translation>
  </message>
  <message id="Take_Away_title">
    <source></source>
    <translation>&amp;Retirer</translation>
  </message>
  <message id="Set_Rights_title">
    <source></source>
    <translation>&amp;Définir les droits</translation>
  </message>
  <message id="Preset_Read_title">
    <source></source>
    <translation>&amp;Lecture</translation>
  </message>
  <message id="Preset_Write_title">
    <source></source>
    <translation>Lecture &amp;et écriture</translation>
  </message>
  <message id="Preset_All_title">
    <source></source>
    <translation>&amp;Tout sauf Superviseur</translation>
  </message>
  <message id="Preset_None_title">
    <source></source>
    <translation>&amp;Rien</translation>
  </message>
  <message id="Show_Log_title">
    <source></source>
    <translation>Afficher &amp;le journal</translation>
  </message>
  <message id="No_Log_Viewer_Label">
    <source></source>
    <translation>Aucun programme n’a ouvert le journal : %1</translation>
  </message>
  <message id="Why_Nothing_Waits_Label">
    <source></source>
    <translation>Il n’y a rien à appliquer ni à rétablir</translation>
  </message>
  <message id="Why_Needs_Rights_Label">
    <source></source>
    <translation>Exige ici le droit Superviseur ou Contrôle d’accès</translation>
  </message>
  <message id="Why_Needs_Supervisor_Label">
    <source></source>
    <translation>Exige ici le droit Superviseur</translation>
  </message>
  <message id="Why_Both_Shown_Label">
    <source></source>
    <translation>Impossible tant que les deux annuaires sont affichés ensemble</translation>
  </message>
  <message id="Why_Nobody_Chosen_Label">
    <source></source>
    <translation>Choisissez d’abord un utilisateur ou un groupe</translation>
  </message>
  <message id="Why_Not_A_User_Label">
    <source></source>
    <translation>Seuls les utilisateurs ont des droits par des groupes</translation>
  </message>
  <message id="Why_Read_Only_File_Label">
    <source></source>
    <translation>Un élément en lecture seule ne peut être ni renommé ni supprimé</translation>
  </message>
  <message id="Why_File_Only_Label">
    <source></source>
    <translation>On compresse les fichiers, pas les dossiers</translation>
  </message>
  <message id="Why_Being_Edited_Label">
    <source></source>
    <translation>La limite est en cours de modification</translation>
  </message>
  <message id="Why_Nothing_Selected_Label">
    <source></source>
    <translation>Sélectionnez d’abord un élément de la liste</translation>
  </message>
  <message id="Why_No_Place_Label">
    <source></source>
    <translation>Indiquez d’abord où chercher</translation>
  </message>
  <message id="FSR_Not_Allowed_Label">
    <source></source>
    <translation>Voir les chemins d’un utilisateur ou d’un groupe exige ici le droit Superviseur.</translation>
  </message>
  <message id="Group_Rights_Of_Label">
    <source></source>
    <translation>Ce que %1 détient par des groupes</translation>
  </message>
  <message id="Salvage_Purge_title">
    <source></source>
    <translation>&amp;Récupérer et purger : pas dans cette version</translation>
  </message>
  <message id="Path_Outside_Label">
    <source></source>
    <translation>Hors de %1, donc absents de cette liste après « Appliquer » : %2</translation>
  </message>
  <message id="No_Password_Label">
    <source></source>
    <translation>Le trousseau ne contient pas de mot de passe pour %1. Montez l’un de ses partages dans le gestionnaire de fichiers avec « Se souvenir du mot de passe », puis réessayez.</translation>
  </message>
  <message id="Handover_Nothing_Label">
    <source></source>
    <translation>Choisissez un fichier ou un dossier d’un partage monté dans le gestionnaire de fichiers, puis « Gérer les droits… » dans son menu.</translation>
  </message>
  <message id="Handover_Several_Label">
    <source></source>
    <translation>Quorvan travaille sur un seul fichier ou dossier à la fois.</translation>
  </message>
  <message id="Handover_No_Share_Label">
    <source></source>
    <translation>« %1 » n’est pas sur un partage SMB monté.</translation>
  </message>
  <message id="Handover_Gone_Label">
    <source></source>
    <translation>« %1 » n’existe plus.</translation>
  </message>
  <message id="Handover_Unknown_Share_Label">
    <source></source>
    <translation>La table des partages, shares.conf, ne dit pas sous quel chemin du serveur se trouve « %1 ».</translation>
  </message>
  <message id="Handover_Odd_Name_Label">
    <source></source>
    <translation>« %1 » contient dans son chemin un nom qui ne peut pas être transmis.</translation>
  </message>
  <message id="Handover_Not_Written_Label">
    <source></source>
    <translation>La sélection n’a pas pu être transmise : group.tarnix.common.plist, dans votre dossier de configuration, ne peut pas être écrit.</translation>
  </message>
  <message id="Handover_Not_Started_Label">
    <source></source>
    <translation>Le programme quorvan n’a pas pu être démarré.</translation>
  </message>
  <message id="Why_title">
    <source></source>
    <translation>&amp;Pourquoi cet utilisateur ou ce groupe a-t-il ces droits…</translation>
  </message>
  <message id="Why_Button_title">
    <source></source>
    <translation>P&amp;ourquoi…</translation>
  </message>
  <message id="Why_Button_Tip_Label">
    <source></source>
    <translation>Montrer d’où viennent ces droits et ce qui en arrête d’autres</translation>
  </message>
  <message id="Why_Window_Title">
    <source></source>
    <translation>Pourquoi : %1 – %2</translation>
  </message>
  <message id="Why_Served_Label">
    <source></source>
    <translation>Ce que le serveur accorde ici :</translation>
  </message>
  <message id="Why_Served_More_Label">
    <source></source>
    <translation>Le serveur accorde %1 ; ce qui est visible d’ici ne permet pas de l’expliquer.</translation>
  </message>
  <message id="Why_Served_Less_Label">
    <source></source>
    <translation>D’après ce qui est visible d’ici, %1 devrait être accordé, mais le serveur ne l’accorde pas.</translation>
  </message>
  <message id="Why_Right_Label">
    <source></source>
    <translation>Droit</translation>
  </message>
  <message id="Why_Holds_Label">
    <source></source>
    <translation>Détenu</translation>
  </message>
  <message id="Why_Reason_Label">
    <source></source>
    <translation>Pourquoi</translation>
  </message>
  <message id="Why_Way_Label">
    <source></source>
    <translation>Le trajet du volume à ce chemin :</translation>
  </message>
  <message id="Why_Granted_Label">
    <source></source>
    <translation>Accordé ici</translation>
  </message>
  <message id="Why_Passes_Label">
    <source></source>
    <translation>Laissé passer depuis le parent</translation>
  </message>
  <message id="Why_Passes_All_Label">
    <source></source>
    <translation>tout</translation>
  </message>
  <message id="Why_Not_Visible_Label">
    <source></source>
    <translation>non visible</translation>
  </message>
  <message id="Why_Yes_Label">
    <source></source>
    <translation>oui</translation>
  </message>
  <message id="Why_No_Label">
    <source></source>
    <translation>non</translation>
  </message>
  <message id="Why_Granted_Self_Label">
    <source></source>
    <translation>Accordé à %1 sur %2</translation>
  </message>
  <message id="Why_Granted_Group_Label">
    <source></source>
    <translation>Accordé sur %2 à %1, par appartenance</translation>
  </message>
  <message id="Why_Filtered_Label">
    <source></source>
    <translation> ; arrêté par le filtre de %1</translation>
  </message>
  <message id="Why_Replaced_Label">
    <source></source>
    <translation> ; remplacé par l’attribution sur %1</translation>
  </message>
  <message id="Why_By_Supervisor_Label">
    <source></source>
    <translation>Inclus dans Superviseur</translation>
  </message>
  <message id="Why_Nowhere_Label">
    <source></source>
    <translation>Accordé nulle part</translation>
  </message>
  <message id="Why_Decides_Label">
    <source></source>
    <translation>décisif</translation>
  </message>
  <message id="Why_Unknown_Label">
    <source></source>
    <translation>Ceci n’a pas pu être lu sur le serveur.</translation>
  </message>
  <message id="Why_Invisible_Label">
    <source></source>
    <translation>%1 n’a pas pu être lu ; ce qui est accordé là et au-dessus n’est pas visible.</translation>
  </message>
  <message id="Why_Everyone_Label">
    <source></source>
    <translation>%3 a ces droits sur %1 : %2. L’annuaire ne dit pas si cela vaut ici.</translation>
  </message>
  <message id="Why_No_Assignment_Label">
    <source></source>
    <translation>Sélectionnez une raison qui nomme une attribution</translation>
  </message>
  <message id="Why_Go_To_title">
    <source></source>
    <translation>&amp;Montrer dans les dossiers des ayants droit</translation>
  </message>
  <message id="Why_Go_To_Tip_Label">
    <source></source>
    <translation>Fermer cette feuille et aller à l’attribution, où elle peut être modifiée</translation>
  </message>
  <message id="Why_Copy_title">
    <source></source>
    <translation>&amp;Copier comme texte</translation>
  </message>
  <message id="Why_Copy_Tip_Label">
    <source></source>
    <translation>Tout copier, pour un ticket ou un audit</translation>
  </message>
  <message id="Help_Contents_title">
    <source></source>
    <translation>&amp;Sommaire</translation>
  </message>
  <message id="No_Guide_Label">
    <source></source>
    <translation>Le guide de l’utilisateur n’a pas pu être ouvert : %1</translation>
  </message>
  <message id="List_Refused_Label">
    <source></source>
    <translation>Le serveur a refusé d’en donner la liste.</translation>
  </message>
  <message id="List_Unreadable_Label">
    <source></source>
    <translation>La réponse du serveur n’a pas pu être lue.</translation>
  </message>
  <message id="List_Partly_Refused_Label">
    <source></source>
    <translation>La liste est incomplète : le serveur en a refusé au moins une partie.</translation>
  </message>
  <message id="List_Partly_Unreadable_Label">
    <source></source>
    <translation>La liste est incomplète : une réponse du serveur n’a pas pu être lue.</translation>
  </message>
  <message id="Right_Stopped_Label">
    <source></source>
    <translation>%1, arrêté par le filtre de %2</translation>
  </message>
  <message id="Stopped_title">
    <source></source>
    <translation>Marquer les droits arr&amp;êtés</translation>
  </message>
  <message id="Stopped_Tip_Label">
    <source></source>
    <translation>Lire les filtres des dossiers supérieurs et marquer les droits qui n’arrivent pas ici</translation>
  </message>
  <message id="Stopped_None_Label">
    <source></source>
    <translation>Aucun filtre sur le chemin n’arrête ces droits.</translation>
  </message>
  <message id="Stopped_Unread_Label">
    <source></source>
    <translation>Illisible ; ce que son filtre arrête n’est pas marqué : %1</translation>
  </message>
  <message id="Why_Export_title">
    <source></source>
    <translation>E&amp;xporter…</translation>
  </message>
  <message id="Why_Export_Filter_Label">
    <source></source>
    <translation>Texte (*.txt)</translation>
  </message>
  <message id="Why_Leave_Pending_Label">
    <source></source>
    <translation>Appliquez ou annulez d’abord les modifications : quitter la page les perdrait</translation>
  </message>
  <message id="Why_On_Server_Label">
    <source></source>
    <translation>%1 sur %2</translation>
  </message>
  <message id="Why_Unstoppable_Label">
    <source></source>
    <translation> ; rien ne l’arrête</translation>
  </message>
  <message id="Why_On_Way_Label">
    <source></source>
    <translation>sur son chemin</translation>
  </message>
  <message id="Why_Change_Label">
    <source></source>
    <translation>Ce qui le changerait :</translation>
  </message>
  <message id="Why_Take_Label">
    <source></source>
    <translation>Retirer %1 à %2 sur %3</translation>
  </message>
  <message id="Why_Take_Also_Label">
    <source></source>
    <translation>Et retirer %1 à %2 sur %3</translation>
  </message>
  <message id="Why_Give_Label">
    <source></source>
    <translation>Accorder %1 à %2 aussi sur %3</translation>
  </message>
  <message id="Why_Let_Through_Label">
    <source></source>
    <translation>Laisser passer %1 dans le filtre de %2</translation>
  </message>
  <message id="Why_Nothing_Chosen_Label">
    <source></source>
    <translation>Sélectionnez un droit ci-dessus.</translation>
  </message>
  <message id="Why_Nothing_There_Label">
    <source></source>
    <translation>Il devrait être accordé ici ou sur un dossier supérieur.</translation>
  </message>
  <message id="Why_Named_title">
    <source></source>
    <translation>&amp;Pourquoi %1 a-t-il ces droits ici ?</translation>
  </message>
  <message id="Stopped_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n droit n’arrive pas ici : il est souligné, et son infobulle nomme le dossier qui l’arrête</numerusform>
      <numerusform>%n droits n’arrivent pas ici : ils sont soulignés, et leurs infobulles nomment les dossiers qui les arrêtent</numerusform>
    </translation>
  </message>
  <message id="Sent_In_Doubt_Label">
    <source></source>
    <translation>Envoyé, mais le résultat n’a pas pu être lu : %1</translation>
  </message>
  <message id="Sent_Outside_Label">
    <source></source>
    <translation>Envoyé ; le résultat n’est pas dans cette liste : %1</translation>
  </message>
  <message id="Edit_Nobody_Label">
    <source></source>
    <translation>Aucun utilisateur n’était sélectionné dans le tableau.
Ajoutez-en ici, ou fermez et sélectionnez-en là-bas.</translation>
  </message>
  <message id="Why_Only_Shown_Label">
    <source></source>
    <translation>Affiché ici, non modifiable ici</translation>
  </message>
  <message id="Attribute_On_Label">
    <source></source>
    <translation>activé</translation>
  </message>
  <message id="Attribute_Off_Label">
    <source></source>
    <translation>désactivé</translation>
  </message>
  <message id="Attributes_As_Before_Label">
    <source></source>
    <translation>comme avant</translation>
  </message>
  <message id="Why_One_Only_Label">
    <source></source>
    <translation>Sélectionnez d’abord une seule ligne</translation>
  </message>
  <message id="Quorvan_Help_Label">
    <source></source>
    <translation>Utilisation: quorvan [--help] [--version]

Affiche et modifie les droits sur le fichier ou le dossier choisi dans le
gestionnaire de fichiers, dont le menu le lance ; lancé seul, il reprend la
dernière sélection.

  -h, --help     affiche ce texte et s’arrête
  -v, --version  affiche la version et s’arrête</translation>
  </message>
  <message id="Handover_Help_Label">
    <source></source>
    <translation>Utilisation: quorvan-handover PATH|URI

Ouvre Quorvan sur un fichier ou un dossier d’un partage SMB monté : un chemin
local ou une adresse smb://HOST/SHARE/chemin. Les menus des gestionnaires de
fichiers l’appellent.

  -h, --help     affiche ce texte et s’arrête
  -v, --version  affiche la version et s’arrête</translation>
  </message>
</context>
</TS>

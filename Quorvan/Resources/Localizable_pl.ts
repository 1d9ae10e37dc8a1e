<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
  <name></name>
  <message id="AboutQuorvan_title">
    <source></source>
    <translation>&amp;O programie Quorvan</translation>
  </message>
  <message id="Preferences_title">
    <source></source>
    <translation>&amp;Preferencje…</translation>
  </message>
  <message id="Services_title">
    <source></source>
    <translation>Usługi</translation>
  </message>
  <message id="HideQuorvan_title">
    <source></source>
    <translation>Ukryj Quorvan</translation>
  </message>
  <message id="HideOthers_title">
    <source></source>
    <translation>Ukryj pozostałe</translation>
  </message>
  <message id="ShowAll_title">
    <source></source>
    <translation>Pokaż wszystkie</translation>
  </message>
  <message id="QuitQuorvan_title">
    <source></source>
    <translation>&amp;Zakończ Quorvan</translation>
  </message>
  <message id="Help_title">
    <source></source>
    <translation>&amp;Pomoc</translation>
  </message>
  <message id="QuorvanHelp_title">
    <source></source>
    <translation>Pomoc programu &amp;Quorvan</translation>
  </message>
  <message id="Application_Menu_Label">
    <source></source>
    <translation>&amp;Quorvan</translation>
  </message>
  <message id="About_Description_Label">
    <source></source>
    <translation>Zarządzanie uprawnieniami do plików i folderów na woluminach Kelp.</translation>
  </message>
  <message id="About_Version_Label">
    <source></source>
    <translation>Wersja %1</translation>
  </message>
  <message id="About_Licence_Label">
    <source></source>
    <translation>Wolne oprogramowanie na Powszechnej Licencji Publicznej GNU, w wersji 3 lub nowszej.</translation>
  </message>
  <message id="Help_Heading_Label">
    <source></source>
    <translation>Jak działa Quorvan</translation>
  </message>
  <message id="Help_Selection_Label">
    <source></source>
    <translation>Quorvan zajmuje się plikiem lub folderem wybranym w menedżerze plików. Aby zarządzać innym, należy go tam wybrać i ponownie otworzyć program Quorvan z menu.</translation>
  </message>
  <message id="Help_Editing_Label">
    <source></source>
    <translation>Zaznacz lub odznacz pole, aby nadać lub odebrać uprawnienie. Do serwera nic nie trafia przed naciśnięciem „Zastosuj”; „Przywróć” wczytuje stan z serwera. Uprawnienia można zmieniać tam, gdzie ma się uprawnienie Nadzorca lub Kontrola dostępu; wszędzie indziej lista jest tylko do odczytu.</translation>
  </message>
  <message id="Help_Rights_Label">
    <source></source>
    <translation>Litery nad polami</translation>
  </message>
  <message id="Help_Log_Label">
    <source></source>
    <translation>Zapytania programu Quorvan do serwera i odpowiedzi serwera są zapisywane w %1</translation>
  </message>
  <message id="RM_Window_Title">
    <source></source>
    <translation>Zarządzanie uprawnieniami</translation>
  </message>
  <message id="Trustee_Rights_Title">
    <source></source>
    <translation>Uprawnienia dysponentów</translation>
  </message>
  <message id="File_System_Rights_Title">
    <source></source>
    <translation>Uprawnienia w systemie plików</translation>
  </message>
  <message id="User_Quota_Title">
    <source></source>
    <translation>Limity użytkowników</translation>
  </message>
  <message id="Information_Title">
    <source></source>
    <translation>Informacje</translation>
  </message>
  <message id="Settings_Title">
    <source></source>
    <translation>Ustawienia</translation>
  </message>
  <message id="Trustee_Rights_Description_Label">
    <source></source>
    <translation>Kto co może tutaj robić: dysponenci i ich uprawnienia</translation>
  </message>
  <message id="File_System_Rights_Description_Label">
    <source></source>
    <translation>Wszystkie ścieżki poniżej, do których użytkownik lub grupa ma uprawnienia</translation>
  </message>
  <message id="User_Quota_Description_Label">
    <source></source>
    <translation>Ile miejsca każdy użytkownik może zająć na woluminie</translation>
  </message>
  <message id="Information_Description_Label">
    <source></source>
    <translation>Atrybuty, właściciel i limit folderu</translation>
  </message>
  <message id="Settings_Description_Label">
    <source></source>
    <translation>Pokaż dysponentów z obu katalogów</translation>
  </message>
  <message id="Managed_Path_Label">
    <source></source>
    <translation>Zarządzana ścieżka</translation>
  </message>
  <message id="Try_Again_title">
    <source></source>
    <translation>&amp;Spróbuj ponownie</translation>
  </message>
  <message id="Try_Again_Tip_Label">
    <source></source>
    <translation>Zapytaj serwer ponownie, kto jest zalogowany</translation>
  </message>
  <message id="Managed_Server_Label">
    <source></source>
    <translation>na %1</translation>
  </message>
  <message id="Rights_Label">
    <source></source>
    <translation>Uprawnienia</translation>
  </message>
  <message id="Inherited_Rights_Label">
    <source></source>
    <translation>Filtr uprawnień dziedziczonych</translation>
  </message>
  <message id="Effective_Rights_Label">
    <source></source>
    <translation>Uprawnienia efektywne</translation>
  </message>
  <message id="Trustee_Directories_Label">
    <source></source>
    <translation>Foldery dysponentów</translation>
  </message>
  <message id="Rights_Tip_Label">
    <source></source>
    <translation>Dysponenci tej ścieżki i ich uprawnienia</translation>
  </message>
  <message id="Inherited_Rights_Tip_Label">
    <source></source>
    <translation>Jakie uprawnienia ta ścieżka przepuszcza z folderów nadrzędnych</translation>
  </message>
  <message id="Effective_Rights_Tip_Label">
    <source></source>
    <translation>Co dysponent może tutaj naprawdę robić</translation>
  </message>
  <message id="Trustee_Directories_Tip_Label">
    <source></source>
    <translation>Dysponenci folderów nadrzędnych i podrzędnych</translation>
  </message>
  <message id="Close_title">
    <source></source>
    <translation>Za&amp;mknij</translation>
  </message>
  <message id="Close_Tip_Label">
    <source></source>
    <translation>Powrót do przeglądu</translation>
  </message>
  <message id="Col_UserGrp_Name">
    <source></source>
    <translation>Użytkownik lub grupa</translation>
  </message>
  <message id="Add_Remove_Label">
    <source></source>
    <translation>Dysponenci:</translation>
  </message>
  <message id="Apply_title">
    <source></source>
    <translation>Z&amp;astosuj</translation>
  </message>
  <message id="Revert_title">
    <source></source>
    <translation>P&amp;rzywróć</translation>
  </message>
  <message id="Rights_Label_Title">
    <source></source>
    <translation>Dysponenci i ich uprawnienia</translation>
  </message>
  <message id="Morvane_Trustee_Label">
    <source></source>
    <translation>Pokaż &amp;też dysponentów Morvane</translation>
  </message>
  <message id="AD_Trustee_Label">
    <source></source>
    <translation>P&amp;okaż też dysponentów Active Directory</translation>
  </message>
  <message id="Both_Trustee_Label">
    <source></source>
    <translation>Pokaż &amp;dysponentów z obu katalogów</translation>
  </message>
  <message id="Supervisor_Label">
    <source></source>
    <translation>Nadzorca</translation>
  </message>
  <message id="Read_Label">
    <source></source>
    <translation>Odczyt</translation>
  </message>
  <message id="Write_Label">
    <source></source>
    <translation>Zapis</translation>
  </message>
  <message id="Erase_Label">
    <source></source>
    <translation>Usuwanie</translation>
  </message>
  <message id="Create_Label">
    <source></source>
    <translation>Tworzenie</translation>
  </message>
  <message id="Modify_Label">
    <source></source>
    <translation>Modyfikacja</translation>
  </message>
  <message id="File_Scan_Label">
    <source></source>
    <translation>Przeglądanie</translation>
  </message>
  <message id="Access_Control_Label">
    <source></source>
    <translation>Kontrola dostępu</translation>
  </message>
  <message id="Right_Ticked_Label">
    <source></source>
    <translation>%1: nadane</translation>
  </message>
  <message id="Right_Unticked_Label">
    <source></source>
    <translation>%1: nienadane</translation>
  </message>
  <message id="Search_Placeholder_Label">
    <source></source>
    <translation>Szukaj według nazwy</translation>
  </message>
  <message id="Search_Tip_Label">
    <source></source>
    <translation>Wpisz część nazwy. Przy szukaniu całej nazwy * oznacza dowolne znaki, a ? jeden znak.</translation>
  </message>
  <message id="No_Trustees_Label">
    <source></source>
    <translation>Ta ścieżka nie ma dysponentów.</translation>
  </message>
  <message id="No_Match_Label">
    <source></source>
    <translation>Żadna nazwa nie pasuje do „%1”.</translation>
  </message>
  <message id="Rights_Read_Only_Label">
    <source></source>
    <translation>Można przeglądać te uprawnienia, ale nie zmieniać: wymaga to tutaj uprawnienia Nadzorca lub Kontrola dostępu.</translation>
  </message>
  <message id="Add_title">
    <source></source>
    <translation>&amp;Dodaj…</translation>
  </message>
  <message id="Add_Tip_Label">
    <source></source>
    <translation>Wybierz użytkowników i grupy, które zostaną dysponentami tej ścieżki</translation>
  </message>
  <message id="Remove_title">
    <source></source>
    <translation>&amp;Usuń</translation>
  </message>
  <message id="Remove_Tip_Label">
    <source></source>
    <translation>Usuń zaznaczonych dysponentów z tej ścieżki</translation>
  </message>
  <message id="Revert_Tip_Label">
    <source></source>
    <translation>Odrzuć wszystkie niezastosowane zmiany</translation>
  </message>
  <message id="Apply_Tip_Label">
    <source></source>
    <translation>Wyślij wszystkie zmiany do serwera</translation>
  </message>
  <message id="Path_Label">
    <source></source>
    <translation>Ścieżka</translation>
  </message>
  <message id="Owner_Label">
    <source></source>
    <translation>Właściciel</translation>
  </message>
  <message id="No_Owner_Label">
    <source></source>
    <translation>Nikt</translation>
  </message>
  <message id="Owner_Gone_Label">
    <source></source>
    <translation>Nieznany użytkownik (%1)</translation>
  </message>
  <message id="Change_Owner_title">
    <source></source>
    <translation>&amp;Zmień…</translation>
  </message>
  <message id="Change_Owner_Tip_Label">
    <source></source>
    <translation>Wybierz użytkownika, do którego należy ten plik lub folder</translation>
  </message>
  <message id="Information_Read_Only_Label">
    <source></source>
    <translation>Zmiana właściciela lub limitu wymaga tutaj uprawnienia Nadzorca. O możliwości zmiany atrybutów decyduje serwer.</translation>
  </message>
  <message id="KELP_Attr_Label">
    <source></source>
    <translation>Atrybuty &amp;Kelp</translation>
  </message>
  <message id="Read_Only_Label">
    <source></source>
    <translation>&amp;Tylko do odczytu</translation>
  </message>
  <message id="Read_Only_Tip_Label">
    <source></source>
    <translation>Nie można zmienić zawartości ani zmienić nazwy lub usunąć</translation>
  </message>
  <message id="Hidden_Label">
    <source></source>
    <translation>&amp;Ukryty</translation>
  </message>
  <message id="Hidden_Tip_Label">
    <source></source>
    <translation>Pomijany na zwykłych listach</translation>
  </message>
  <message id="Archive_Label">
    <source></source>
    <translation>Ar&amp;chiwalny</translation>
  </message>
  <message id="Archive_Tip_Label">
    <source></source>
    <translation>Zmieniony od ostatniej kopii zapasowej</translation>
  </message>
  <message id="Purge_Immediately_Label">
    <source></source>
    <translation>Natychmiastowe &amp;wymazywanie</translation>
  </message>
  <message id="Purge_Immediately_Tip_Label">
    <source></source>
    <translation>Po usunięciu stracony na zawsze; nie można go odzyskać</translation>
  </message>
  <message id="Rename_Inhibit_Label">
    <source></source>
    <translation>Blokada zmiany &amp;nazwy</translation>
  </message>
  <message id="Rename_Inhibit_Tip_Label">
    <source></source>
    <translation>Nie można zmienić nazwy; zawsze tak jest przy „tylko do odczytu”</translation>
  </message>
  <message id="Delete_Inhibit_Label">
    <source></source>
    <translation>Bl&amp;okada usuwania</translation>
  </message>
  <message id="Delete_Inhibit_Tip_Label">
    <source></source>
    <translation>Nie można usunąć; zawsze tak jest przy „tylko do odczytu”</translation>
  </message>
  <message id="Immediate_Compression_Label">
    <source></source>
    <translation>Nat&amp;ychmiastowa kompresja</translation>
  </message>
  <message id="Immediate_Compression_Tip_Label">
    <source></source>
    <translation>Kompresowany, gdy tylko serwer ma na to czas</translation>
  </message>
  <message id="Dont_Compress_Label">
    <source></source>
    <translation>&amp;Bez kompresji</translation>
  </message>
  <message id="Dont_Compress_Tip_Label">
    <source></source>
    <translation>Nigdy nie jest kompresowany; tylko dla plików</translation>
  </message>
  <message id="Directory_Quota_Label">
    <source></source>
    <translation>Limit &amp;folderu</translation>
  </message>
  <message id="Limit_Label">
    <source></source>
    <translation>Limit</translation>
  </message>
  <message id="Used_Label">
    <source></source>
    <translation>Zajęte</translation>
  </message>
  <message id="Available_Label">
    <source></source>
    <translation>Dostępne</translation>
  </message>
  <message id="Unit_Label">
    <source></source>
    <translation>Jednostka limitu</translation>
  </message>
  <message id="Edit_Limit_title">
    <source></source>
    <translation>&amp;Edytuj limit</translation>
  </message>
  <message id="Edit_Limit_Tip_Label">
    <source></source>
    <translation>Wpisz inny limit dla tego folderu</translation>
  </message>
  <message id="Remove_Limit_title">
    <source></source>
    <translation>Usuń &amp;limit</translation>
  </message>
  <message id="Remove_Limit_Tip_Label">
    <source></source>
    <translation>Pozwól temu folderowi rosnąć tak, jak pozwala wolumin</translation>
  </message>
  <message id="Quota_Bar_Label">
    <source></source>
    <translation>Zajęta część limitu</translation>
  </message>
  <message id="Quota_Usage_Label">
    <source></source>
    <translation>zajęte %1%</translation>
  </message>
  <message id="Quota_Exceeded_Label">
    <source></source>
    <translation>Przekroczono limit</translation>
  </message>
  <message id="Salvage_Title">
    <source></source>
    <translation>Odzyskiwanie</translation>
  </message>
  <message id="Purge_Title">
    <source></source>
    <translation>Wymazywanie</translation>
  </message>
  <message id="Salvage_Description_Label">
    <source></source>
    <translation>Przywracanie usuniętych plików</translation>
  </message>
  <message id="Purge_Description_Label">
    <source></source>
    <translation>Trwałe usuwanie skasowanych plików</translation>
  </message>
  <message id="Salvage_Purpose_Label">
    <source></source>
    <translation>Pliki usunięte poniżej tej ścieżki pozostają na woluminie, dopóki nie zostaną wymazane. Do tego czasu można je odzyskać wraz z dysponentami i atrybutami.</translation>
  </message>
  <message id="Purge_Purpose_Label">
    <source></source>
    <translation>Pliki usunięte poniżej tej ścieżki pozostają na woluminie, dopóki nie zostaną wymazane. Wymazanie zwalnia miejsce; potem nie można ich odzyskać.</translation>
  </message>
  <message id="Salvage_Purge_Nothing_Sent_Label">
    <source></source>
    <translation>Ta wersja nie robi jeszcze żadnej z tych rzeczy: nic na tej stronie nie wysyła niczego do serwera.</translation>
  </message>
  <message id="Deleted_Files_Tip_Label">
    <source></source>
    <translation>Co ta wersja może zrobić z usuniętymi plikami</translation>
  </message>
  <message id="More_Information_title">
    <source></source>
    <translation>&amp;Więcej informacji…</translation>
  </message>
  <message id="More_Information_Title">
    <source></source>
    <translation>Więcej informacji</translation>
  </message>
  <message id="Salvage_Purge_More_Label">
    <source></source>
    <translation>Serwer przechowuje usunięty plik, dopóki jego miejsce nie będzie potrzebne lub ktoś go nie wymaże. Odzyskanie przywraca go do folderu; wymazanie usuwa na zawsze. Pliki z atrybutem „Natychmiastowe wymazywanie” nigdy nie są przechowywane.

Quorvan nie potrafi jeszcze odzyskiwać ani wymazywać plików i nie wysyła stąd niczego do serwera. Do czasu wersji, która to umożliwi, należy używać narzędzi zarządzania serwera.</translation>
  </message>
  <message id="Users_with_Quota_Label">
    <source></source>
    <translation>Użytkownicy z limitem na tym woluminie</translation>
  </message>
  <message id="User_Name_Label">
    <source></source>
    <translation>Użytkownik</translation>
  </message>
  <message id="Col_User_Name">
    <source></source>
    <translation>Nazwa</translation>
  </message>
  <message id="Quota_Limit_Label">
    <source></source>
    <translation>Limit dla &amp;każdego:</translation>
  </message>
  <message id="No_User_Quotas_Label">
    <source></source>
    <translation>Żaden użytkownik nie ma limitu na tym woluminie.</translation>
  </message>
  <message id="User_Quotas_Unknown_Label">
    <source></source>
    <translation>Nie udało się odczytać limitów z serwera.</translation>
  </message>
  <message id="User_Quota_Read_Only_Label">
    <source></source>
    <translation>Można przeglądać te limity, ale nie zmieniać: wymaga to tutaj uprawnienia Nadzorca.</translation>
  </message>
  <message id="Edit_title">
    <source></source>
    <translation>&amp;Edytuj…</translation>
  </message>
  <message id="Add_User_Quota_Tip_Label">
    <source></source>
    <translation>Wybierz użytkowników i ogranicz ich miejsce</translation>
  </message>
  <message id="Edit_User_Quota_Tip_Label">
    <source></source>
    <translation>Ustaw inny limit zaznaczonym użytkownikom</translation>
  </message>
  <message id="Remove_User_Quota_Tip_Label">
    <source></source>
    <translation>Zdejmij limit z zaznaczonych użytkowników</translation>
  </message>
  <message id="Add_User_Quota_Title">
    <source></source>
    <translation>Dodawanie limitu użytkownika</translation>
  </message>
  <message id="Edit_User_Quota_Title">
    <source></source>
    <translation>Edycja limitu użytkownika</translation>
  </message>
  <message id="Add_Users_title">
    <source></source>
    <translation>Dodaj &amp;użytkowników…</translation>
  </message>
  <message id="Add_Users_Tip_Label">
    <source></source>
    <translation>Wybierz kolejnych użytkowników z tym limitem</translation>
  </message>
  <message id="No_Users_Chosen_Label">
    <source></source>
    <translation>Nie wybrano jeszcze użytkowników.</translation>
  </message>
  <message id="User_Quota_Unlimited">
    <source></source>
    <translation>Bez limitu</translation>
  </message>
  <message id="User_Quota_Not_Set">
    <source></source>
    <translation>Nieustawiony</translation>
  </message>
  <message id="User_Quota_Maximum">
    <source></source>
    <translation>Tyle, ile ma wolumin</translation>
  </message>
  <message id="Invalid_Quota_Limit">
    <source></source>
    <translation>Limit jest liczbą całkowitą, na przykład 5. Jednostkę należy wybrać z listy obok.</translation>
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
    <translation>Zaznaczone uprawnienie przechodzi z folderów nadrzędnych do tej ścieżki. Odznacz pole, aby je tutaj zatrzymać.</translation>
  </message>
  <message id="Inherited_Box_Tip_Label">
    <source></source>
    <translation>Zaznaczone: %1 przechodzi z folderów nadrzędnych. Odznaczone: zatrzymuje się tutaj.</translation>
  </message>
  <message id="Inherited_Supervisor_Tip_Label">
    <source></source>
    <translation>Żaden filtr nie zatrzymuje uprawnienia Nadzorca.</translation>
  </message>
  <message id="Effective_Label">
    <source></source>
    <translation>Co dysponenci tej ścieżki mogą tutaj naprawdę robić:</translation>
  </message>
  <message id="Select_Effective_Trustee_Label">
    <source></source>
    <translation>Co inny użytkownik lub inna grupa może tutaj naprawdę robić:</translation>
  </message>
  <message id="User_Group_Label">
    <source></source>
    <translation>Użytkownik lub grupa:</translation>
  </message>
  <message id="Nobody_Chosen_Label">
    <source></source>
    <translation>Nikogo jeszcze nie wybrano</translation>
  </message>
  <message id="Choose_title">
    <source></source>
    <translation>&amp;Wybierz…</translation>
  </message>
  <message id="Choose_Effective_Tip_Label">
    <source></source>
    <translation>Wybierz użytkownika lub grupę, aby zobaczyć uprawnienia efektywne</translation>
  </message>
  <message id="Choose_Needs_Rights_Label">
    <source></source>
    <translation>Wybór użytkownika lub grupy wymaga tutaj uprawnienia Nadzorca lub Kontrola dostępu</translation>
  </message>
  <message id="Subdirectories_Label">
    <source></source>
    <translation>Dysponenci tej ścieżki i wszystkiego poniżej:</translation>
  </message>
  <message id="Parent_dir_Label">
    <source></source>
    <translation>Dysponenci tej ścieżki i folderów nadrzędnych:</translation>
  </message>
  <message id="Remove_Trustee_Label">
    <source></source>
    <translation>Usuwanie dysponentów:</translation>
  </message>
  <message id="Remove_Parent_title">
    <source></source>
    <translation>U&amp;suń</translation>
  </message>
  <message id="Col_Path">
    <source></source>
    <translation>Ścieżka</translation>
  </message>
  <message id="Search_Paths_Placeholder_Label">
    <source></source>
    <translation>Szukaj według nazwy lub ścieżki</translation>
  </message>
  <message id="Search_Sub_Label">
    <source></source>
    <translation>Szukaj według nazwy lub ścieżki tutaj i poniżej</translation>
  </message>
  <message id="Search_Parent_Label">
    <source></source>
    <translation>Szukaj według nazwy lub ścieżki tutaj i w folderach nadrzędnych</translation>
  </message>
  <message id="No_Sub_Trustees_Label">
    <source></source>
    <translation>Ani ta ścieżka, ani nic poniżej nie ma dysponentów.</translation>
  </message>
  <message id="No_Parent_Trustees_Label">
    <source></source>
    <translation>Ani ta ścieżka, ani foldery nadrzędne nie mają dysponentów.</translation>
  </message>
  <message id="No_Match_Path_Label">
    <source></source>
    <translation>Żadna nazwa ani ścieżka nie pasuje do „%1”.</translation>
  </message>
  <message id="FSR_Label_Title">
    <source></source>
    <translation>Wszystkie ścieżki poniżej, których dysponentem jest użytkownik lub grupa:</translation>
  </message>
  <message id="Choose_FSR_Tip_Label">
    <source></source>
    <translation>Wybierz użytkownika lub grupę, aby zobaczyć ścieżki</translation>
  </message>
  <message id="Group_Rights">
    <source></source>
    <translation>Uprawnienia &amp;grup…</translation>
  </message>
  <message id="Group_Rights_Tip_Label">
    <source></source>
    <translation>Pokaż, co ten użytkownik ma dzięki swoim grupom</translation>
  </message>
  <message id="Add_Remove_Path_Label">
    <source></source>
    <translation>Ścieżki:</translation>
  </message>
  <message id="Add_Path_Tip_Label">
    <source></source>
    <translation>Wybierz pliki i foldery, których dysponentem zostanie ten użytkownik lub ta grupa</translation>
  </message>
  <message id="Remove_Path_Tip_Label">
    <source></source>
    <translation>Usuń tego użytkownika lub tę grupę z zaznaczonych ścieżek</translation>
  </message>
  <message id="FSR_Read_Only_Label">
    <source></source>
    <translation>Wybór użytkownika lub grupy wymaga uprawnienia Nadzorca do tej ścieżki.</translation>
  </message>
  <message id="FSR_Nobody_Label">
    <source></source>
    <translation>Wybierz użytkownika lub grupę, aby zobaczyć ścieżki.</translation>
  </message>
  <message id="FSR_No_Paths_Label">
    <source></source>
    <translation>Nie jest dysponentem żadnej ścieżki poniżej.</translation>
  </message>
  <message id="Group_Rights_Title">
    <source></source>
    <translation>Uprawnienia przez grupy</translation>
  </message>
  <message id="Col_Group">
    <source></source>
    <translation>Grupa</translation>
  </message>
  <message id="No_Group_Rights_Label">
    <source></source>
    <translation>Żadna grupa tego użytkownika nie jest dysponentem ścieżki poniżej.</translation>
  </message>
  <message id="Browse_Folder_Title">
    <source></source>
    <translation>Wybór plików i folderów</translation>
  </message>
  <message id="Browse_Folder_Root_Label">
    <source></source>
    <translation>Zamontowany wolumin</translation>
  </message>
  <message id="Volume_Not_Mounted_Label">
    <source></source>
    <translation>Wolumin %1 nie jest zamontowany na tym komputerze. Otwórz go w menedżerze plików i spróbuj ponownie.</translation>
  </message>
  <message id="Warning_Title">
    <source></source>
    <translation>Ostrzeżenie</translation>
  </message>
  <message id="Error_Title">
    <source></source>
    <translation>Błąd</translation>
  </message>
  <message id="View_label">
    <source></source>
    <translation>&amp;Widok:</translation>
  </message>
  <message id="Node_label">
    <source></source>
    <translation>&amp;Domena:</translation>
  </message>
  <message id="Node_label_morvane">
    <source></source>
    <translation>&amp;Poniżej:</translation>
  </message>
  <message id="Users_Title">
    <source></source>
    <translation>Użytkownicy</translation>
  </message>
  <message id="Groups_Title">
    <source></source>
    <translation>Grupy</translation>
  </message>
  <message id="Containers_Title">
    <source></source>
    <translation>Kontenery</translation>
  </message>
  <message id="Fetch_title">
    <source></source>
    <translation>P&amp;obierz</translation>
  </message>
  <message id="Fetch_Tip_Label">
    <source></source>
    <translation>Zapytaj usługę katalogową</translation>
  </message>
  <message id="Select_title">
    <source></source>
    <translation>W&amp;ybierz</translation>
  </message>
  <message id="Cancel_title">
    <source></source>
    <translation>&amp;Anuluj</translation>
  </message>
  <message id="OK_title">
    <source></source>
    <translation>&amp;OK</translation>
  </message>
  <message id="Browse_AD_Title">
    <source></source>
    <translation>Wybór z Active Directory</translation>
  </message>
  <message id="Browse_Morvane_Title">
    <source></source>
    <translation>Wybór z drzewa Morvane</translation>
  </message>
  <message id="Browse_List_Label">
    <source></source>
    <translation>Znalezieni użytkownicy i grupy</translation>
  </message>
  <message id="Browse_Choose_Label">
    <source></source>
    <translation>Wybierz…</translation>
  </message>
  <message id="Browse_AD_Start_Label">
    <source></source>
    <translation>Wybierz, co pokazać i w której domenie, a potem naciśnij „Pobierz”.</translation>
  </message>
  <message id="Browse_Morvane_Start_Label">
    <source></source>
    <translation>Wybierz, co pokazać, wpisz, gdzie szukać (na przykład .O=kestmoor.T=tree.), i naciśnij „Pobierz”.</translation>
  </message>
  <message id="No_Domains_Label">
    <source></source>
    <translation>Ten komputer nie zna żadnej domeny Active Directory.</translation>
  </message>
  <message id="Domain_Silent_Label">
    <source></source>
    <translation>%1 nie odpowiada. Szczegóły są w pliku dziennika.</translation>
  </message>
  <message id="No_Users_In_Label">
    <source></source>
    <translation>Nie znaleziono użytkowników w %1.</translation>
  </message>
  <message id="No_Groups_In_Label">
    <source></source>
    <translation>Nie znaleziono grup w %1.</translation>
  </message>
  <message id="No_Users_Below_Label">
    <source></source>
    <translation>Nie znaleziono użytkowników poniżej %1</translation>
  </message>
  <message id="No_Groups_Below_Label">
    <source></source>
    <translation>Nie znaleziono grup poniżej %1</translation>
  </message>
  <message id="No_Containers_Below_Label">
    <source></source>
    <translation>Nie znaleziono kontenerów poniżej %1</translation>
  </message>
  <message id="No_Users_Label">
    <source></source>
    <translation>Nie znaleziono użytkowników.</translation>
  </message>
  <message id="No_Groups_Label">
    <source></source>
    <translation>Nie znaleziono grup.</translation>
  </message>
  <message id="Identify_Source_Title">
    <source></source>
    <translation>Wybór katalogu</translation>
  </message>
  <message id="Select_source_of_identity_Label">
    <source></source>
    <translation>Z którego katalogu chcesz wybierać?</translation>
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
    <translation>Gdy to ustawienie jest włączone, listy pokazują dysponentów z obu katalogów, a przy każdym wyborze użytkownika lub grupy najpierw pojawia się pytanie, w którym katalogu szukać. Ustawienie działa do zakończenia programu Quorvan.</translation>
  </message>
  <message id="Settings_Read_Only_Label">
    <source></source>
    <translation>Może to zmienić tylko użytkownik z uprawnieniem Nadzorca lub Kontrola dostępu do tej ścieżki.</translation>
  </message>
  <message id="Log_Details_Label">
    <source></source>
    <translation>Wszystko, o co Quorvan pyta serwer, i każda odpowiedź są zapisywane w pliku dziennika w tym folderze. Pomoc pokazuje, gdzie się on znajduje na tym komputerze.</translation>
  </message>
  <message id="Err_Msg_Duplicate_Trustee">
    <source></source>
    <translation>Wybrany użytkownik lub grupa jest już na liście i pozostaje bez zmian.</translation>
  </message>
  <message id="Err_No_Object">
    <source></source>
    <translation>Serwer nie zna tego obiektu.</translation>
  </message>
  <message id="Err_MI_Create_Failed">
    <source></source>
    <translation>Nie udało się nawiązać połączenia zarządzającego z serwerem.</translation>
  </message>
  <message id="Err_Fail_SalvagePurge">
    <source></source>
    <translation>Nie udało się odzyskać lub wymazać plików.</translation>
  </message>
  <message id="Err_Invalid_FileName">
    <source></source>
    <translation>Nazwa pliku zawiera znaki, których serwer nie przyjmuje.</translation>
  </message>
  <message id="Err_Duplicate_FileName">
    <source></source>
    <translation>Plik o tej nazwie już istnieje. Wybierz inną nazwę.</translation>
  </message>
  <message id="Err_Invalid_FilePath">
    <source></source>
    <translation>Ta ścieżka nie istnieje na serwerze lub jest nieprawidłowa.</translation>
  </message>
  <message id="Err_Empty_FileName">
    <source></source>
    <translation>Wpisz nazwę pliku.</translation>
  </message>
  <message id="Err_NIT_Down">
    <source></source>
    <translation>Usługa tożsamości serwera nie odpowiada. Poproś administratora serwera o jej uruchomienie.</translation>
  </message>
  <message id="Err_No_Privilege">
    <source></source>
    <translation>Nie masz uprawnień wymaganych przez tę operację.</translation>
  </message>
  <message id="Err_Purge_Warning">
    <source></source>
    <translation>Wymazanie usuwa pliki na zawsze. Potem nie można ich odzyskać.</translation>
  </message>
  <message id="Err_CancelAll_Warning">
    <source></source>
    <translation>Wszystkie niezastosowane zmiany zostaną utracone.</translation>
  </message>
  <message id="Err_Keychain_Not_Found">
    <source></source>
    <translation>W bazie kluczy nie znaleziono hasła serwera. Zamontuj zasób z opcją „Zapamiętaj hasło” i ponownie otwórz program Quorvan.</translation>
  </message>
  <message id="Err_Pipe_Open_Failed">
    <source></source>
    <translation>Nie udało się otworzyć usługi zarządzania serwera.</translation>
  </message>
  <message id="Err_Operation_Failed">
    <source></source>
    <translation>Serwer nie wykonał operacji. Sprawdź połączenie z serwerem i czy jego hasło jest w bazie kluczy, a potem spróbuj ponownie. Szczegóły są w pliku dziennika.</translation>
  </message>
  <message id="Err_AD_Connect">
    <source></source>
    <translation>Active Directory jest nieosiągalne. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
  </message>
  <message id="Err_Logged_User_Morvane">
    <source></source>
    <translation>Zalogowano do serwera jako użytkownik katalogu Morvane, którego ta instalacja nie obsługuje. Quorvan zakończy działanie.</translation>
  </message>
  <message id="Waiting_Label">
    <source></source>
    <translation>Oczekiwanie na serwer: %1 s</translation>
  </message>
  <message id="Group_Rights_Unknown_Label">
    <source></source>
    <translation>Nie udało się odczytać uprawnień grup.</translation>
  </message>
  <message id="Rights_Unknown_Label">
    <source></source>
    <translation>Nieznane: nie udało się odczytać uprawnień.</translation>
  </message>
  <message id="Pending_Tip_Label">
    <source></source>
    <translation>Pokaż zmiany czekające na zastosowanie</translation>
  </message>
  <message id="Pending_Change_Label">
    <source></source>
    <translation>%1: %2</translation>
  </message>
  <message id="Pending_Removed_Label">
    <source></source>
    <translation>%1 zostanie usunięty</translation>
  </message>
  <message id="Pending_Not_Shown_Label">
    <source></source>
    <translation>%1, niewidoczne na liście</translation>
  </message>
  <message id="Pending_No_Rights_Label">
    <source></source>
    <translation>brak uprawnień</translation>
  </message>
  <message id="Pending_Added_Row_Label">
    <source></source>
    <translation>%1, nowy, czeka na zastosowanie</translation>
  </message>
  <message id="Pending_Changed_Row_Label">
    <source></source>
    <translation>%1, zmieniony, czeka na zastosowanie</translation>
  </message>
  <message id="Applied_Label">
    <source></source>
    <translation>Zastosowano: %1</translation>
  </message>
  <message id="Pending_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n zmiana czeka na zastosowanie</numerusform>
      <numerusform>%n zmiany czekają na zastosowanie</numerusform>
      <numerusform>%n zmian czeka na zastosowanie</numerusform>
    </translation>
  </message>
  <message id="Pending_More_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>i %n inny</numerusform>
      <numerusform>i %n inne</numerusform>
      <numerusform>i %n innych</numerusform>
    </translation>
  </message>
  <message id="Not_Applied_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>Serwer nie przyjął %1 z %n zmiany: %2</numerusform>
      <numerusform>Serwer nie przyjął %1 z %n zmian: %2</numerusform>
      <numerusform>Serwer nie przyjął %1 z %n zmian: %2</numerusform>
    </translation>
  </message>
  <message id="Inherited_Filter_Label">
    <source></source>
    <translation>Przepuszczane uprawnienia</translation>
  </message>
  <message id="Attributes_Change_Label">
    <source></source>
    <translation>Atrybuty</translation>
  </message>
  <message id="Owner_Change_Label">
    <source></source>
    <translation>Właściciel</translation>
  </message>
  <message id="Quota_Change_Label">
    <source></source>
    <translation>Limit folderu</translation>
  </message>
  <message id="Pending_None_Label">
    <source></source>
    <translation>brak</translation>
  </message>
  <message id="Copy_title">
    <source></source>
    <translation>&amp;Kopiuj</translation>
  </message>
  <message id="Export_title">
    <source></source>
    <translation>Eksportuj &amp;jako CSV…</translation>
  </message>
  <message id="Export_Filter_Label">
    <source></source>
    <translation>Wartości rozdzielone przecinkami (*.csv)</translation>
  </message>
  <message id="Exported_Label">
    <source></source>
    <translation>Wyeksportowano do %1</translation>
  </message>
  <message id="Not_Exported_Label">
    <source></source>
    <translation>Nie zapisano %1: %2</translation>
  </message>
  <message id="No_Reload_Label">
    <source></source>
    <translation>Nie odczytano ponownie: są zmiany czekające na zastosowanie. Najpierw je zastosuj lub przywróć stan z serwera.</translation>
  </message>
  <message id="Take_Off_title">
    <source></source>
    <translation>O&amp;dłącz</translation>
  </message>
  <message id="Take_Off_Tip_Label">
    <source></source>
    <translation>Usuń zaznaczonych użytkowników z tej listy</translation>
  </message>
  <message id="Current_Limit_Label">
    <source></source>
    <translation>obecnie %1</translation>
  </message>
  <message id="Current_Limits_Label">
    <source></source>
    <translation>obecnie od %1 do %2</translation>
  </message>
  <message id="Over_Limit_Row_Label">
    <source></source>
    <translation>%1, przekroczono limit</translation>
  </message>
  <message id="Over_Limit_Tip_Label">
    <source></source>
    <translation>Więcej, niż pozwala limit</translation>
  </message>
  <message id="Over_Limit_Next_Tip_Label">
    <source></source>
    <translation>Przejdź do następnego</translation>
  </message>
  <message id="Over_Limit_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n użytkownik przekracza limit</numerusform>
      <numerusform>%n użytkowników przekracza limit</numerusform>
      <numerusform>%n użytkowników przekracza limit</numerusform>
    </translation>
  </message>
  <message id="Connecting_Label">
    <source></source>
    <translation>Łączenie z %1…</translation>
  </message>
  <message id="Connection_Lost_Label">
    <source></source>
    <translation>Utracono połączenie z %1.</translation>
  </message>
  <message id="Connection_Lost_Reading_Label">
    <source></source>
    <translation>Nie udało się odczytać wszystkiego.</translation>
  </message>
  <message id="Connection_Lost_Changes_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>Nie wiadomo, czy %n zmiana została wykonana. „Zastosuj” wysyła ją ponownie; „Przywróć” ponownie odczytuje stan.</numerusform>
      <numerusform>Nie wiadomo, czy %n zmiany zostały wykonane. „Zastosuj” wysyła je ponownie; „Przywróć” ponownie odczytuje stan.</numerusform>
      <numerusform>Nie wiadomo, czy %n zmian zostało wykonanych. „Zastosuj” wysyła je ponownie; „Przywróć” ponownie odczytuje stan.</numerusform>
    </translation>
  </message>
  <message id="Supervisor_Explained_Label">
    <source></source>
    <translation>%1: daje wszystkie uprawnienia tutaj i do wszystkiego poniżej, niezależnie od innych pól; żaden filtr go nie zatrzymuje.</translation>
  </message>
  <message id="Read_Explained_Label">
    <source></source>
    <translation>%1: otwieranie i czytanie plików.</translation>
  </message>
  <message id="Write_Explained_Label">
    <source></source>
    <translation>%1: otwieranie plików i zmiana ich zawartości.</translation>
  </message>
  <message id="Erase_Explained_Label">
    <source></source>
    <translation>%1: usuwanie plików i folderów.</translation>
  </message>
  <message id="Create_Explained_Label">
    <source></source>
    <translation>%1: tworzenie nowych plików i folderów.</translation>
  </message>
  <message id="Modify_Explained_Label">
    <source></source>
    <translation>%1: zmiana nazw plików i folderów oraz ich atrybutów.</translation>
  </message>
  <message id="File_Scan_Explained_Label">
    <source></source>
    <translation>%1: widoczność plików i folderów na listach.</translation>
  </message>
  <message id="Access_Control_Explained_Label">
    <source></source>
    <translation>%1: zmiana tego, kto ma jakie uprawnienia tutaj i co jest dziedziczone.</translation>
  </message>
  <message id="Row_Explained_Label">
    <source></source>
    <translation>Zawartość wiersza zastępuje to, co ten sam użytkownik lub ta sama grupa ma z folderów nadrzędnych. Wiersz bez zaznaczeń nic z tego nie zostawia.</translation>
  </message>
  <message id="Grant_title">
    <source></source>
    <translation>&amp;Nadaj</translation>
  </message>
  <message id="Take_Away_title">
    <source></source>
    <translation>&amp;Odbierz</translation>
  </message>
  <message id="Set_Rights_title">
    <source></source>
    <translation>U&amp;staw uprawnienia</translation>
  </message>
  <message id="Preset_Read_title">
    <source></source>
    <translation>&amp;Odczyt</translation>
  </message>
  <message id="Preset_Write_title">
    <source></source>
    <translation>Odczyt &amp;i zapis</translation>
  </message>
  <message id="Preset_All_title">
    <source></source>
    <translation>&amp;Wszystko oprócz Nadzorcy</translation>
  </message>
  <message id="Preset_None_title">
    <source></source>
    <translation>&amp;Nic</translation>
  </message>
  <message id="Show_Log_title">
    <source></source>
    <translation>&amp;Pokaż plik dziennika</translation>
  </message>
  <message id="No_Log_Viewer_Label">
    <source></source>
    <translation>Żaden program nie otworzył pliku dziennika: %1</translation>
  </message>
  <message id="Why_Nothing_Waits_Label">
    <source></source>
    <translation>Nie ma nic do zastosowania ani przywrócenia</translation>
  </message>
  <message id="Why_Needs_Rights_Label">
    <source></source>
    <translation>Wymaga tutaj uprawnienia Nadzorca lub Kontrola dostępu</translation>
  </message>
  <message id="Why_Needs_Supervisor_Label">
    <source></source>
    <translation>Wymaga tutaj uprawnienia Nadzorca</translation>
  </message>
  <message id="Why_Both_Shown_Label">
    <source></source>
    <translation>Nie wtedy, gdy oba katalogi są pokazane razem</translation>
  </message>
  <message id="Why_Nobody_Chosen_Label">
    <source></source>
    <translation>Najpierw wybierz użytkownika lub grupę</translation>
  </message>
  <message id="Why_Not_A_User_Label">
    <source></source>
    <translation>Tylko użytkownicy mają uprawnienia przez grupy</translation>
  </message>
  <message id="Why_Read_Only_File_Label">
    <source></source>
    <translation>Tego, co jest tylko do odczytu, nie można przemianować ani usunąć</translation>
  </message>
  <message id="Why_File_Only_Label">
    <source></source>
    <translation>Kompresowane są pliki, nie foldery</translation>
  </message>
  <message id="Why_Being_Edited_Label">
    <source></source>
    <translation>Trwa edycja limitu</translation>
  </message>
  <message id="Why_Nothing_Selected_Label">
    <source></source>
    <translation>Najpierw zaznacz coś na liście</translation>
  </message>
  <message id="Why_No_Place_Label">
    <source></source>
    <translation>Najpierw podaj, gdzie szukać</translation>
  </message>
  <message id="FSR_Not_Allowed_Label">
    <source></source>
    <translation>Wyświetlenie ścieżek użytkownika lub grupy wymaga tutaj uprawnienia Nadzorca.</translation>
  </message>
  <message id="Group_Rights_Of_Label">
    <source></source>
    <translation>Co %1 ma dzięki grupom</translation>
  </message>
  <message id="Salvage_Purge_title">
    <source></source>
    <translation>Odzyskiwanie &amp;i wymazywanie: nie w tej wersji</translation>
  </message>
  <message id="Path_Outside_Label">
    <source></source>
    <translation>Poza %1, więc po zastosowaniu niewidoczne na tej liście: %2</translation>
  </message>
  <message id="No_Password_Label">
    <source></source>
    <translation>Baza kluczy nie zawiera hasła dla %1. Zamontuj jego zasób w menedżerze plików z opcją „Zapamiętaj hasło” i spróbuj ponownie.</translation>
  </message>
  <message id="Handover_Nothing_Label">
    <source></source>
    <translation>W menedżerze plików wybierz plik lub folder zamontowanego zasobu, a z jego menu „Zarządzaj uprawnieniami…”.</translation>
  </message>
  <message id="Handover_Several_Label">
    <source></source>
    <translation>Quorvan zajmuje się jednym plikiem lub folderem naraz.</translation>
  </message>
  <message id="Handover_No_Share_Label">
    <source></source>
    <translation>„%1” nie znajduje się na zamontowanym zasobie SMB.</translation>
  </message>
  <message id="Handover_Gone_Label">
    <source></source>
    <translation>„%1” już nie istnieje.</translation>
  </message>
  <message id="Handover_Unknown_Share_Label">
    <source></source>
    <translation>Tabela zasobów shares.conf nie określa, poniżej której ścieżki serwera leży „%1”.</translation>
  </message>
  <message id="Handover_Odd_Name_Label">
    <source></source>
    <translation>„%1” ma w ścieżce nazwę, której nie można przekazać.</translation>
  </message>
  <message id="Handover_Not_Written_Label">
    <source></source>
    <translation>Nie udało się przekazać wyboru: nie można zapisać pliku group.tarnix.common.plist w folderze konfiguracji.</translation>
  </message>
  <message id="Handover_Not_Started_Label">
    <source></source>
    <translation>Nie udało się uruchomić programu quorvan.</translation>
  </message>
  <message id="Why_title">
    <source></source>
    <translation>Dlaczego &amp;ten użytkownik lub ta grupa ma te uprawnienia…</translation>
  </message>
  <message id="Why_Button_title">
    <source></source>
    <translation>D&amp;laczego…</translation>
  </message>
  <message id="Why_Button_Tip_Label">
    <source></source>
    <translation>Pokaż, skąd są te uprawnienia i co zatrzymuje inne</translation>
  </message>
  <message id="Why_Window_Title">
    <source></source>
    <translation>Dlaczego: %1 – %2</translation>
  </message>
  <message id="Why_Served_Label">
    <source></source>
    <translation>Co serwer tutaj przyznaje:</translation>
  </message>
  <message id="Why_Served_More_Label">
    <source></source>
    <translation>Serwer przyznaje: %1; nie wyjaśnia tego to, co stąd widać.</translation>
  </message>
  <message id="Why_Served_Less_Label">
    <source></source>
    <translation>Według tego, co stąd widać, serwer powinien przyznać: %1, ale tego nie robi.</translation>
  </message>
  <message id="Why_Right_Label">
    <source></source>
    <translation>Uprawnienie</translation>
  </message>
  <message id="Why_Holds_Label">
    <source></source>
    <translation>Ma</translation>
  </message>
  <message id="Why_Reason_Label">
    <source></source>
    <translation>Dlaczego</translation>
  </message>
  <message id="Why_Way_Label">
    <source></source>
    <translation>Droga od woluminu do tej ścieżki:</translation>
  </message>
  <message id="Why_Granted_Label">
    <source></source>
    <translation>Nadane tutaj</translation>
  </message>
  <message id="Why_Passes_Label">
    <source></source>
    <translation>Przepuszczone z góry</translation>
  </message>
  <message id="Why_Passes_All_Label">
    <source></source>
    <translation>wszystko</translation>
  </message>
  <message id="Why_Not_Visible_Label">
    <source></source>
    <translation>niewidoczne</translation>
  </message>
  <message id="Why_Yes_Label">
    <source></source>
    <translation>tak</translation>
  </message>
  <message id="Why_No_Label">
    <source></source>
    <translation>nie</translation>
  </message>
  <message id="Why_Granted_Self_Label">
    <source></source>
    <translation>Nadane %1 na %2</translation>
  </message>
  <message id="Why_Granted_Group_Label">
    <source></source>
    <translation>Nadane na %2 %1 (przez członkostwo)</translation>
  </message>
  <message id="Why_Filtered_Label">
    <source></source>
    <translation>; zatrzymane przez filtr %1</translation>
  </message>
  <message id="Why_Replaced_Label">
    <source></source>
    <translation>; zastąpione przez przypisanie na %1</translation>
  </message>
  <message id="Why_By_Supervisor_Label">
    <source></source>
    <translation>Zawarte w uprawnieniu Nadzorca</translation>
  </message>
  <message id="Why_Nowhere_Label">
    <source></source>
    <translation>Nigdzie nienadane</translation>
  </message>
  <message id="Why_Decides_Label">
    <source></source>
    <translation>rozstrzyga</translation>
  </message>
  <message id="Why_Unknown_Label">
    <source></source>
    <translation>Nie udało się tego odczytać z serwera.</translation>
  </message>
  <message id="Why_Invisible_Label">
    <source></source>
    <translation>Nie udało się odczytać %1; nie widać, co nadano tam i powyżej.</translation>
  </message>
  <message id="Why_Everyone_Label">
    <source></source>
    <translation>%3 ma na %1 uprawnienia: %2. Usługa katalogowa nie określa, czy to tutaj obowiązuje.</translation>
  </message>
  <message id="Why_No_Assignment_Label">
    <source></source>
    <translation>Zaznacz powód, który wskazuje przypisanie</translation>
  </message>
  <message id="Why_Go_To_title">
    <source></source>
    <translation>&amp;Pokaż w folderach dysponentów</translation>
  </message>
  <message id="Why_Go_To_Tip_Label">
    <source></source>
    <translation>Zamknij ten arkusz i przejdź do przypisania, gdzie można je zmienić</translation>
  </message>
  <message id="Why_Copy_title">
    <source></source>
    <translation>&amp;Kopiuj jako tekst</translation>
  </message>
  <message id="Why_Copy_Tip_Label">
    <source></source>
    <translation>Kopiuj wszystko, na potrzeby zgłoszenia lub audytu</translation>
  </message>
  <message id="Help_Contents_title">
    <source></source>
    <translation>&amp;Spis treści</translation>
  </message>
  <message id="No_Guide_Label">
    <source></source>
    <translation>Nie udało się otworzyć podręcznika użytkownika: %1</translation>
  </message>
  <message id="List_Refused_Label">
    <source></source>
    <translation>Serwer odmówił podania listy.</translation>
  </message>
  <message id="List_Unreadable_Label">
    <source></source>
    <translation>Nie udało się odczytać odpowiedzi serwera.</translation>
  </message>
  <message id="List_Partly_Refused_Label">
    <source></source>
    <translation>Lista jest niepełna: serwer odmówił podania przynajmniej jej części.</translation>
  </message>
  <message id="List_Partly_Unreadable_Label">
    <source></source>
    <translation>Lista jest niepełna: nie udało się odczytać odpowiedzi serwera.</translation>
  </message>
  <message id="Right_Stopped_Label">
    <source></source>
    <translation>%1, zatrzymane przez filtr %2</translation>
  </message>
  <message id="Stopped_title">
    <source></source>
    <translation>Oznacz zatr&amp;zymane prawa</translation>
  </message>
  <message id="Stopped_Tip_Label">
    <source></source>
    <translation>Odczytaj filtry folderów nadrzędnych i oznacz prawa, które tu nie docierają</translation>
  </message>
  <message id="Stopped_None_Label">
    <source></source>
    <translation>Żaden filtr po drodze nie zatrzymuje tych praw.</translation>
  </message>
  <message id="Stopped_Unread_Label">
    <source></source>
    <translation>Nie można odczytać; to, co zatrzymuje filtr, nie jest oznaczone: %1</translation>
  </message>
  <message id="Why_Export_title">
    <source></source>
    <translation>Wy&amp;eksportuj…</translation>
  </message>
  <message id="Why_Export_Filter_Label">
    <source></source>
    <translation>Tekst (*.txt)</translation>
  </message>
  <message id="Why_Leave_Pending_Label">
    <source></source>
    <translation>Najpierw zastosuj lub wycofaj zmiany: opuszczenie strony by je utraciło</translation>
  </message>
  <message id="Why_On_Server_Label">
    <source></source>
    <translation>%1 na %2</translation>
  </message>
  <message id="Why_Unstoppable_Label">
    <source></source>
    <translation>; nic go nie zatrzymuje</translation>
  </message>
  <message id="Why_On_Way_Label">
    <source></source>
    <translation>po drodze</translation>
  </message>
  <message id="Why_Change_Label">
    <source></source>
    <translation>Co by to zmieniło:</translation>
  </message>
  <message id="Why_Take_Label">
    <source></source>
    <translation>Odebrać %1: %2 na %3</translation>
  </message>
  <message id="Why_Take_Also_Label">
    <source></source>
    <translation>I odebrać %1: %2 na %3</translation>
  </message>
  <message id="Why_Give_Label">
    <source></source>
    <translation>Nadać %1 także na %3: %2</translation>
  </message>
  <message id="Why_Let_Through_Label">
    <source></source>
    <translation>Przepuścić %1 w filtrze %2</translation>
  </message>
  <message id="Why_Nothing_Chosen_Label">
    <source></source>
    <translation>Wybierz prawo powyżej.</translation>
  </message>
  <message id="Why_Nothing_There_Label">
    <source></source>
    <translation>Trzeba by je nadać tutaj lub na folderze nadrzędnym.</translation>
  </message>
  <message id="Why_Named_title">
    <source></source>
    <translation>&amp;Dlaczego %1 ma tu te prawa?</translation>
  </message>
  <message id="Stopped_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n prawo tu nie dociera: jest podkreślone, a podpowiedź podaje folder, który je zatrzymuje</numerusform>
      <numerusform>%n prawa tu nie docierają: są podkreślone, a podpowiedzi podają foldery, które je zatrzymują</numerusform>
      <numerusform>%n praw tu nie dociera: są podkreślone, a podpowiedzi podają foldery, które je zatrzymują</numerusform>
    </translation>
  </message>
  <message id="Sent_In_Doubt_Label">
    <source></source>
    <translation>Wysłano, ale wyniku nie udało się odczytać: %1</translation>
  </message>
  <message id="Sent_Outside_Label">
    <source></source>
    <translation>Wysłano; wyniku nie ma na tej liście: %1</translation>
  </message>
  <message id="Edit_Nobody_Label">
    <source></source>
    <translation>W tabeli nie wybrano użytkownika.
Dodaj użytkowników tutaj albo zamknij i wybierz ich tam.</translation>
  </message>
  <message id="Why_Only_Shown_Label">
    <source></source>
    <translation>Tutaj tylko pokazane, nie do zmiany</translation>
  </message>
  <message id="Attribute_On_Label">
    <source></source>
    <translation>włączony</translation>
  </message>
  <message id="Attribute_Off_Label">
    <source></source>
    <translation>wyłączony</translation>
  </message>
  <message id="Attributes_As_Before_Label">
    <source></source>
    <translation>jak poprzednio</translation>
  </message>
  <message id="Why_One_Only_Label">
    <source></source>
    <translation>Najpierw zaznacz jeden wiersz</translation>
  </message>
  <message id="Quorvan_Help_Label">
    <source></source>
    <translation>Użycie: quorvan [--help] [--version]

Wyświetla i zmienia uprawnienia do pliku lub folderu wybranego w menedżerze
plików, którego menu uruchamia program; uruchomiony samodzielnie pracuje na
ostatnim wyborze.

  -h, --help     wyświetla ten tekst i kończy
  -v, --version  wyświetla wersję i kończy</translation>
  </message>
  <message id="Handover_Help_Label">
    <source></source>
    <translation>Użycie: quorvan-handover PATH|URI

Otwiera Quorvan na pliku lub folderze zamontowanego udziału SMB: ścieżka lokalna
lub adres smb://HOST/SHARE/ścieżka. Wywołują go menu menedżerów plików.

  -h, --help     wyświetla ten tekst i kończy
  -v, --version  wyświetla wersję i kończy</translation>
  </message>
</context>
</TS>

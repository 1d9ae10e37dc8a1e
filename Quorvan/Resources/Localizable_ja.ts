<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
  <name></name>
  <message id="AboutQuorvan_title">
    <source></source>
    <translation>Quorvan について(&amp;A)</translation>
  </message>
  <message id="Preferences_title">
    <source></source>
    <translation>設定(&amp;P)…</translation>
  </message>
  <message id="Services_title">
    <source></source>
    <translation>サービス</translation>
  </message>
  <message id="HideQuorvan_title">
    <source></source>
    <translation>Quorvan を隠す</translation>
  </message>
  <message id="HideOthers_title">
    <source></source>
    <translation>ほかを隠す</translation>
  </message>
  <message id="ShowAll_title">
    <source></source>
    <translation>すべてを表示</translation>
  </message>
  <message id="QuitQuorvan_title">
    <source></source>
    <translation>Quorvan を終了(&amp;Q)</translation>
  </message>
  <message id="Help_title">
    <source></source>
    <translation>ヘルプ(&amp;H)</translation>
  </message>
  <message id="QuorvanHelp_title">
    <source></source>
    <translation>Quorvan のヘルプ(&amp;H)</translation>
  </message>
  <message id="Application_Menu_Label">
    <source></source>
    <translation>Quorvan(&amp;Q)</translation>
  </message>
  <message id="About_Description_Label">
    <source></source>
    <translation>Kelp ボリューム上のファイルとフォルダーの権限を管理します。</translation>
  </message>
  <message id="About_Version_Label">
    <source></source>
    <translation>バージョン %1</translation>
  </message>
  <message id="About_Licence_Label">
    <source></source>
    <translation>GNU 一般公衆ライセンス バージョン 3 以降に基づくフリーソフトウェアです。</translation>
  </message>
  <message id="Help_Heading_Label">
    <source></source>
    <translation>Quorvan の使い方</translation>
  </message>
  <message id="Help_Selection_Label">
    <source></source>
    <translation>Quorvan は、ファイルマネージャーで選択したファイルまたはフォルダーを扱います。別のものを管理するには、ファイルマネージャーでそれを選択し、メニューから Quorvan を開き直してください。</translation>
  </message>
  <message id="Help_Editing_Label">
    <source></source>
    <translation>チェックボックスをオンまたはオフにして、権限を付与または取り消します。［適用］を押すまでサーバーには何も送信されません。［元に戻す］でサーバーの内容に戻ります。権限を変更できるのは、自分がスーパーバイザーまたはアクセス制御の権限を持つ場所だけです。それ以外では一覧は表示専用です。</translation>
  </message>
  <message id="Help_Rights_Label">
    <source></source>
    <translation>チェックボックスの上の文字</translation>
  </message>
  <message id="Help_Log_Label">
    <source></source>
    <translation>Quorvan からサーバーへの要求とサーバーの応答は %1 に記録されます</translation>
  </message>
  <message id="RM_Window_Title">
    <source></source>
    <translation>権限の管理</translation>
  </message>
  <message id="Trustee_Rights_Title">
    <source></source>
    <translation>トラスティ権限</translation>
  </message>
  <message id="File_System_Rights_Title">
    <source></source>
    <translation>ファイルシステム権限</translation>
  </message>
  <message id="User_Quota_Title">
    <source></source>
    <translation>ユーザークォータ</translation>
  </message>
  <message id="Information_Title">
    <source></source>
    <translation>情報</translation>
  </message>
  <message id="Settings_Title">
    <source></source>
    <translation>設定</translation>
  </message>
  <message id="Trustee_Rights_Description_Label">
    <source></source>
    <translation>ここで誰が何をできるか: トラスティとその権限</translation>
  </message>
  <message id="File_System_Rights_Description_Label">
    <source></source>
    <translation>ユーザーまたはグループが権限を持つ、この下のすべてのパス</translation>
  </message>
  <message id="User_Quota_Description_Label">
    <source></source>
    <translation>各ユーザーがボリューム上で使える容量</translation>
  </message>
  <message id="Information_Description_Label">
    <source></source>
    <translation>属性、所有者、ディレクトリクォータ</translation>
  </message>
  <message id="Settings_Description_Label">
    <source></source>
    <translation>両方のディレクトリサービスのトラスティを表示</translation>
  </message>
  <message id="Managed_Path_Label">
    <source></source>
    <translation>管理中のパス</translation>
  </message>
  <message id="Try_Again_title">
    <source></source>
    <translation>再試行(&amp;T)</translation>
  </message>
  <message id="Try_Again_Tip_Label">
    <source></source>
    <translation>ログイン中のユーザーをサーバーにもう一度問い合わせます</translation>
  </message>
  <message id="Managed_Server_Label">
    <source></source>
    <translation>サーバー: %1</translation>
  </message>
  <message id="Rights_Label">
    <source></source>
    <translation>権限</translation>
  </message>
  <message id="Inherited_Rights_Label">
    <source></source>
    <translation>継承権限フィルター</translation>
  </message>
  <message id="Effective_Rights_Label">
    <source></source>
    <translation>有効な権限</translation>
  </message>
  <message id="Trustee_Directories_Label">
    <source></source>
    <translation>トラスティのあるフォルダー</translation>
  </message>
  <message id="Rights_Tip_Label">
    <source></source>
    <translation>このパスのトラスティとその権限</translation>
  </message>
  <message id="Inherited_Rights_Tip_Label">
    <source></source>
    <translation>このパスが上位フォルダーから通す権限</translation>
  </message>
  <message id="Effective_Rights_Tip_Label">
    <source></source>
    <translation>トラスティがここで実際にできること</translation>
  </message>
  <message id="Trustee_Directories_Tip_Label">
    <source></source>
    <translation>上位と下位のフォルダーのトラスティ</translation>
  </message>
  <message id="Close_title">
    <source></source>
    <translation>閉じる(&amp;C)</translation>
  </message>
  <message id="Close_Tip_Label">
    <source></source>
    <translation>概要に戻ります</translation>
  </message>
  <message id="Col_UserGrp_Name">
    <source></source>
    <translation>ユーザーまたはグループ</translation>
  </message>
  <message id="Add_Remove_Label">
    <source></source>
    <translation>トラスティの追加と削除:</translation>
  </message>
  <message id="Apply_title">
    <source></source>
    <translation>適用(&amp;A)</translation>
  </message>
  <message id="Revert_title">
    <source></source>
    <translation>元に戻す(&amp;R)</translation>
  </message>
  <message id="Rights_Label_Title">
    <source></source>
    <translation>トラスティとその権限</translation>
  </message>
  <message id="Morvane_Trustee_Label">
    <source></source>
    <translation>Morvane のトラスティも表示(&amp;O)</translation>
  </message>
  <message id="AD_Trustee_Label">
    <source></source>
    <translation>Active Directory のトラスティも表示(&amp;D)</translation>
  </message>
  <message id="Both_Trustee_Label">
    <source></source>
    <translation>両方のディレクトリサービスのトラスティを表示(&amp;B)</translation>
  </message>
  <message id="Supervisor_Label">
    <source></source>
    <translation>スーパーバイザー</translation>
  </message>
  <message id="Read_Label">
    <source></source>
    <translation>読み取り</translation>
  </message>
  <message id="Write_Label">
    <source></source>
    <translation>書き込み</translation>
  </message>
  <message id="Erase_Label">
    <source></source>
    <translation>消去</translation>
  </message>
  <message id="Create_Label">
    <source></source>
    <translation>作成</translation>
  </message>
  <message id="Modify_Label">
    <source></source>
    <translation>変更</translation>
  </message>
  <message id="File_Scan_Label">
    <source></source>
    <translation>ファイルスキャン</translation>
  </message>
  <message id="Access_Control_Label">
    <source></source>
    <translation>アクセス制御</translation>
  </message>
  <message id="Right_Ticked_Label">
    <source></source>
    <translation>%1: 付与</translation>
  </message>
  <message id="Right_Unticked_Label">
    <source></source>
    <translation>%1: 付与なし</translation>
  </message>
  <message id="Search_Placeholder_Label">
    <source></source>
    <translation>名前で検索</translation>
  </message>
  <message id="Search_Tip_Label">
    <source></source>
    <translation>名前の一部を入力します。名前全体を検索する場合、* は任意の文字列、? は任意の 1 文字を表します。</translation>
  </message>
  <message id="No_Trustees_Label">
    <source></source>
    <translation>このパスにトラスティはありません。</translation>
  </message>
  <message id="No_Match_Label">
    <source></source>
    <translation>「%1」に一致する名前はありません。</translation>
  </message>
  <message id="Rights_Read_Only_Label">
    <source></source>
    <translation>これらの権限は表示できますが、変更はできません。変更するには、ここでスーパーバイザーまたはアクセス制御の権限が必要です。</translation>
  </message>
  <message id="Add_title">
    <source></source>
    <translation>追加(&amp;D)…</translation>
  </message>
  <message id="Add_Tip_Label">
    <source></source>
    <translation>このパスのトラスティにするユーザーとグループを選択します</translation>
  </message>
  <message id="Remove_title">
    <source></source>
    <translation>削除(&amp;M)</translation>
  </message>
  <message id="Remove_Tip_Label">
    <source></source>
    <translation>選択したトラスティをこのパスから削除します</translation>
  </message>
  <message id="Revert_Tip_Label">
    <source></source>
    <translation>まだ適用していない変更をすべて破棄します</translation>
  </message>
  <message id="Apply_Tip_Label">
    <source></source>
    <translation>すべての変更をサーバーに送信します</translation>
  </message>
  <message id="Path_Label">
    <source></source>
    <translation>パス</translation>
  </message>
  <message id="Owner_Label">
    <source></source>
    <translation>所有者</translation>
  </message>
  <message id="No_Owner_Label">
    <source></source>
    <translation>なし</translation>
  </message>
  <message id="Owner_Gone_Label">
    <source></source>
    <translation>不明なユーザー (%1)</translation>
  </message>
  <message id="Change_Owner_title">
    <source></source>
    <translation>変更(&amp;G)…</translation>
  </message>
  <message id="Change_Owner_Tip_Label">
    <source></source>
    <translation>このファイルまたはフォルダーを所有するユーザーを選択します</translation>
  </message>
  <message id="Information_Read_Only_Label">
    <source></source>
    <translation>所有者または制限を変更するには、ここでスーパーバイザーの権限が必要です。属性を変更できるかどうかはサーバーが判断します。</translation>
  </message>
  <message id="KELP_Attr_Label">
    <source></source>
    <translation>Kelp の属性(&amp;K)</translation>
  </message>
  <message id="Read_Only_Label">
    <source></source>
    <translation>読み取り専用(&amp;O)</translation>
  </message>
  <message id="Read_Only_Tip_Label">
    <source></source>
    <translation>内容を変更できません。名前の変更も削除もできません</translation>
  </message>
  <message id="Hidden_Label">
    <source></source>
    <translation>隠し(&amp;D)</translation>
  </message>
  <message id="Hidden_Tip_Label">
    <source></source>
    <translation>通常の一覧には表示されません</translation>
  </message>
  <message id="Archive_Label">
    <source></source>
    <translation>アーカイブ(&amp;V)</translation>
  </message>
  <message id="Archive_Tip_Label">
    <source></source>
    <translation>前回のバックアップ以降に変更されています</translation>
  </message>
  <message id="Purge_Immediately_Label">
    <source></source>
    <translation>ただちに完全削除(&amp;P)</translation>
  </message>
  <message id="Purge_Immediately_Tip_Label">
    <source></source>
    <translation>削除すると完全に失われ、復元できません</translation>
  </message>
  <message id="Rename_Inhibit_Label">
    <source></source>
    <translation>名前の変更を禁止(&amp;N)</translation>
  </message>
  <message id="Rename_Inhibit_Tip_Label">
    <source></source>
    <translation>名前を変更できません。読み取り専用の間は常に禁止です</translation>
  </message>
  <message id="Delete_Inhibit_Label">
    <source></source>
    <translation>削除を禁止(&amp;L)</translation>
  </message>
  <message id="Delete_Inhibit_Tip_Label">
    <source></source>
    <translation>削除できません。読み取り専用の間は常に禁止です</translation>
  </message>
  <message id="Immediate_Compression_Label">
    <source></source>
    <translation>ただちに圧縮(&amp;I)</translation>
  </message>
  <message id="Immediate_Compression_Tip_Label">
    <source></source>
    <translation>サーバーの手が空きしだい圧縮されます</translation>
  </message>
  <message id="Dont_Compress_Label">
    <source></source>
    <translation>圧縮しない(&amp;T)</translation>
  </message>
  <message id="Dont_Compress_Tip_Label">
    <source></source>
    <translation>圧縮されません。ファイルのみ</translation>
  </message>
  <message id="Directory_Quota_Label">
    <source></source>
    <translation>ディレクトリクォータ(&amp;U)</translation>
  </message>
  <message id="Limit_Label">
    <source></source>
    <translation>制限</translation>
  </message>
  <message id="Used_Label">
    <source></source>
    <translation>使用済み</translation>
  </message>
  <message id="Available_Label">
    <source></source>
    <translation>空き</translation>
  </message>
  <message id="Unit_Label">
    <source></source>
    <translation>制限の単位</translation>
  </message>
  <message id="Edit_Limit_title">
    <source></source>
    <translation>制限を編集(&amp;E)</translation>
  </message>
  <message id="Edit_Limit_Tip_Label">
    <source></source>
    <translation>このフォルダーの新しい制限を入力します</translation>
  </message>
  <message id="Remove_Limit_title">
    <source></source>
    <translation>制限を解除(&amp;M)</translation>
  </message>
  <message id="Remove_Limit_Tip_Label">
    <source></source>
    <translation>ボリュームが許す限りこのフォルダーを大きくできるようにします</translation>
  </message>
  <message id="Quota_Bar_Label">
    <source></source>
    <translation>制限のうち使用中の割合</translation>
  </message>
  <message id="Quota_Usage_Label">
    <source></source>
    <translation>%1% 使用</translation>
  </message>
  <message id="Quota_Exceeded_Label">
    <source></source>
    <translation>制限を超えています</translation>
  </message>
  <message id="Salvage_Title">
    <source></source>
    <translation>復元</translation>
  </message>
  <message id="Purge_Title">
    <source></source>
    <translation>完全削除</translation>
  </message>
  <message id="Salvage_Description_Label">
    <source></source>
    <translation>削除したファイルを元に戻します</translation>
  </message>
  <message id="Purge_Description_Label">
    <source></source>
    <translation>削除したファイルを取り除きます</translation>
  </message>
  <message id="Salvage_Purpose_Label">
    <source></source>
    <translation>このパスの下で削除されたファイルは、完全に削除されるまでボリュームに残ります。それまでは、トラスティと属性を含めて復元できます。</translation>
  </message>
  <message id="Purge_Purpose_Label">
    <source></source>
    <translation>このパスの下で削除されたファイルは、完全に削除されるまでボリュームに残ります。完全に削除すると容量が空きますが、その後は復元できません。</translation>
  </message>
  <message id="Salvage_Purge_Nothing_Sent_Label">
    <source></source>
    <translation>このバージョンではどちらもまだできません。このページからサーバーには何も送信されません。</translation>
  </message>
  <message id="Deleted_Files_Tip_Label">
    <source></source>
    <translation>削除したファイルに対してこのバージョンでできること</translation>
  </message>
  <message id="More_Information_title">
    <source></source>
    <translation>詳細情報(&amp;M)…</translation>
  </message>
  <message id="More_Information_Title">
    <source></source>
    <translation>詳細情報</translation>
  </message>
  <message id="Salvage_Purge_More_Label">
    <source></source>
    <translation>削除されたファイルは、その容量が必要になるか誰かが完全に削除するまで、サーバーに保持されます。復元すると元のフォルダーに戻り、完全に削除すると二度と戻せません。「ただちに完全削除」属性を持つファイルは保持されません。

Quorvan はまだファイルの復元や完全削除ができず、ここからサーバーには何も送信しません。今後のバージョンで可能になるまでは、サーバー付属の管理ツールを使ってください。</translation>
  </message>
  <message id="Users_with_Quota_Label">
    <source></source>
    <translation>このボリュームにクォータを持つユーザー</translation>
  </message>
  <message id="User_Name_Label">
    <source></source>
    <translation>ユーザー</translation>
  </message>
  <message id="Col_User_Name">
    <source></source>
    <translation>名前</translation>
  </message>
  <message id="Quota_Limit_Label">
    <source></source>
    <translation>各ユーザーの制限(&amp;L):</translation>
  </message>
  <message id="No_User_Quotas_Label">
    <source></source>
    <translation>このボリュームにクォータを持つユーザーはいません。</translation>
  </message>
  <message id="User_Quotas_Unknown_Label">
    <source></source>
    <translation>クォータをサーバーから読み取れませんでした。</translation>
  </message>
  <message id="User_Quota_Read_Only_Label">
    <source></source>
    <translation>これらのクォータは表示できますが、変更はできません。変更するには、ここでスーパーバイザーの権限が必要です。</translation>
  </message>
  <message id="Edit_title">
    <source></source>
    <translation>編集(&amp;E)…</translation>
  </message>
  <message id="Add_User_Quota_Tip_Label">
    <source></source>
    <translation>ユーザーを選択し、使える容量を制限します</translation>
  </message>
  <message id="Edit_User_Quota_Tip_Label">
    <source></source>
    <translation>選択したユーザーの制限を変更します</translation>
  </message>
  <message id="Remove_User_Quota_Tip_Label">
    <source></source>
    <translation>選択したユーザーの制限を解除します</translation>
  </message>
  <message id="Add_User_Quota_Title">
    <source></source>
    <translation>ユーザークォータの追加</translation>
  </message>
  <message id="Edit_User_Quota_Title">
    <source></source>
    <translation>ユーザークォータの編集</translation>
  </message>
  <message id="Add_Users_title">
    <source></source>
    <translation>ユーザーを追加(&amp;A)…</translation>
  </message>
  <message id="Add_Users_Tip_Label">
    <source></source>
    <translation>この制限を適用するユーザーをさらに選択します</translation>
  </message>
  <message id="No_Users_Chosen_Label">
    <source></source>
    <translation>ユーザーはまだ選択されていません。</translation>
  </message>
  <message id="User_Quota_Unlimited">
    <source></source>
    <translation>無制限</translation>
  </message>
  <message id="User_Quota_Not_Set">
    <source></source>
    <translation>未設定</translation>
  </message>
  <message id="User_Quota_Maximum">
    <source></source>
    <translation>ボリュームの容量まで</translation>
  </message>
  <message id="Invalid_Quota_Limit">
    <source></source>
    <translation>制限は 5 のような整数で入力し、単位を隣の一覧から選択してください。</translation>
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
    <translation>チェックした権限は、上位フォルダーからこのパスまで通ります。チェックを外すと、その権限はここで止まります。</translation>
  </message>
  <message id="Inherited_Box_Tip_Label">
    <source></source>
    <translation>オン: %1は上位フォルダーから通ります。オフ: ここで止まります。</translation>
  </message>
  <message id="Inherited_Supervisor_Tip_Label">
    <source></source>
    <translation>スーパーバイザーの権限を止めるフィルターはありません。</translation>
  </message>
  <message id="Effective_Label">
    <source></source>
    <translation>このパスのトラスティがここで実際にできること:</translation>
  </message>
  <message id="Select_Effective_Trustee_Label">
    <source></source>
    <translation>ほかのユーザーまたはグループがここで実際にできること:</translation>
  </message>
  <message id="User_Group_Label">
    <source></source>
    <translation>ユーザーまたはグループ:</translation>
  </message>
  <message id="Nobody_Chosen_Label">
    <source></source>
    <translation>まだ選択されていません</translation>
  </message>
  <message id="Choose_title">
    <source></source>
    <translation>選択(&amp;O)…</translation>
  </message>
  <message id="Choose_Effective_Tip_Label">
    <source></source>
    <translation>有効な権限を確認するユーザーまたはグループを選択します</translation>
  </message>
  <message id="Choose_Needs_Rights_Label">
    <source></source>
    <translation>ユーザーまたはグループを選択するには、ここでスーパーバイザーまたはアクセス制御の権限が必要です</translation>
  </message>
  <message id="Subdirectories_Label">
    <source></source>
    <translation>このパスとその下のすべてのトラスティ:</translation>
  </message>
  <message id="Parent_dir_Label">
    <source></source>
    <translation>このパスとその上位フォルダーのトラスティ:</translation>
  </message>
  <message id="Remove_Trustee_Label">
    <source></source>
    <translation>トラスティの削除:</translation>
  </message>
  <message id="Remove_Parent_title">
    <source></source>
    <translation>削除(&amp;O)</translation>
  </message>
  <message id="Col_Path">
    <source></source>
    <translation>パス</translation>
  </message>
  <message id="Search_Paths_Placeholder_Label">
    <source></source>
    <translation>名前またはパスで検索</translation>
  </message>
  <message id="Search_Sub_Label">
    <source></source>
    <translation>このパスとその下のすべてを名前またはパスで検索</translation>
  </message>
  <message id="Search_Parent_Label">
    <source></source>
    <translation>このパスとその上位フォルダーを名前またはパスで検索</translation>
  </message>
  <message id="No_Sub_Trustees_Label">
    <source></source>
    <translation>このパスとその下にトラスティはありません。</translation>
  </message>
  <message id="No_Parent_Trustees_Label">
    <source></source>
    <translation>このパスとその上位フォルダーにトラスティはありません。</translation>
  </message>
  <message id="No_Match_Path_Label">
    <source></source>
    <translation>「%1」に一致する名前またはパスはありません。</translation>
  </message>
  <message id="FSR_Label_Title">
    <source></source>
    <translation>ユーザーまたはグループがトラスティである、この下のすべてのパス:</translation>
  </message>
  <message id="Choose_FSR_Tip_Label">
    <source></source>
    <translation>パスを確認するユーザーまたはグループを選択します</translation>
  </message>
  <message id="Group_Rights">
    <source></source>
    <translation>グループの権限(&amp;G)…</translation>
  </message>
  <message id="Group_Rights_Tip_Label">
    <source></source>
    <translation>このユーザーがグループを通じて持つ権限を表示します</translation>
  </message>
  <message id="Add_Remove_Path_Label">
    <source></source>
    <translation>パスの追加と削除:</translation>
  </message>
  <message id="Add_Path_Tip_Label">
    <source></source>
    <translation>このユーザーまたはグループをトラスティにするファイルとフォルダーを選択します</translation>
  </message>
  <message id="Remove_Path_Tip_Label">
    <source></source>
    <translation>選択したパスからこのユーザーまたはグループを外します</translation>
  </message>
  <message id="FSR_Read_Only_Label">
    <source></source>
    <translation>ユーザーまたはグループを選択するには、このパスでスーパーバイザーの権限が必要です。</translation>
  </message>
  <message id="FSR_Nobody_Label">
    <source></source>
    <translation>ユーザーまたはグループを選択すると、パスが表示されます。</translation>
  </message>
  <message id="FSR_No_Paths_Label">
    <source></source>
    <translation>この下のどのパスのトラスティでもありません。</translation>
  </message>
  <message id="Group_Rights_Title">
    <source></source>
    <translation>グループを通じた権限</translation>
  </message>
  <message id="Col_Group">
    <source></source>
    <translation>グループ</translation>
  </message>
  <message id="No_Group_Rights_Label">
    <source></source>
    <translation>このユーザーのどのグループも、この下のパスのトラスティではありません。</translation>
  </message>
  <message id="Browse_Folder_Title">
    <source></source>
    <translation>ファイルとフォルダーの選択</translation>
  </message>
  <message id="Browse_Folder_Root_Label">
    <source></source>
    <translation>マウント済みボリューム</translation>
  </message>
  <message id="Volume_Not_Mounted_Label">
    <source></source>
    <translation>ボリューム %1 はこのコンピューターにマウントされていません。ファイルマネージャーで開いてから、もう一度試してください。</translation>
  </message>
  <message id="Warning_Title">
    <source></source>
    <translation>警告</translation>
  </message>
  <message id="Error_Title">
    <source></source>
    <translation>エラー</translation>
  </message>
  <message id="View_label">
    <source></source>
    <translation>表示(&amp;V):</translation>
  </message>
  <message id="Node_label">
    <source></source>
    <translation>ドメイン(&amp;D):</translation>
  </message>
  <message id="Node_label_morvane">
    <source></source>
    <translation>検索場所(&amp;B):</translation>
  </message>
  <message id="Users_Title">
    <source></source>
    <translation>ユーザー</translation>
  </message>
  <message id="Groups_Title">
    <source></source>
    <translation>グループ</translation>
  </message>
  <message id="Containers_Title">
    <source></source>
    <translation>コンテナー</translation>
  </message>
  <message id="Fetch_title">
    <source></source>
    <translation>取得(&amp;F)</translation>
  </message>
  <message id="Fetch_Tip_Label">
    <source></source>
    <translation>ディレクトリサービスに問い合わせます</translation>
  </message>
  <message id="Select_title">
    <source></source>
    <translation>選択(&amp;S)</translation>
  </message>
  <message id="Cancel_title">
    <source></source>
    <translation>キャンセル(&amp;C)</translation>
  </message>
  <message id="OK_title">
    <source></source>
    <translation>OK(&amp;O)</translation>
  </message>
  <message id="Browse_AD_Title">
    <source></source>
    <translation>Active Directory から選択</translation>
  </message>
  <message id="Browse_Morvane_Title">
    <source></source>
    <translation>Morvane ツリーから選択</translation>
  </message>
  <message id="Browse_List_Label">
    <source></source>
    <translation>見つかったユーザーとグループ</translation>
  </message>
  <message id="Browse_Choose_Label">
    <source></source>
    <translation>選択…</translation>
  </message>
  <message id="Browse_AD_Start_Label">
    <source></source>
    <translation>表示する種類とドメインを選択し、［取得］を押してください。</translation>
  </message>
  <message id="Browse_Morvane_Start_Label">
    <source></source>
    <translation>表示する種類を選択し、検索場所 (例: .O=kestmoor.T=tree.) を入力して［取得］を押してください。</translation>
  </message>
  <message id="No_Domains_Label">
    <source></source>
    <translation>このコンピューターには Active Directory のドメインが登録されていません。</translation>
  </message>
  <message id="Domain_Silent_Label">
    <source></source>
    <translation>%1 が応答しません。詳細はログファイルを参照してください。</translation>
  </message>
  <message id="No_Users_In_Label">
    <source></source>
    <translation>%1 にユーザーは見つかりませんでした。</translation>
  </message>
  <message id="No_Groups_In_Label">
    <source></source>
    <translation>%1 にグループは見つかりませんでした。</translation>
  </message>
  <message id="No_Users_Below_Label">
    <source></source>
    <translation>次の場所の下にユーザーは見つかりませんでした: %1</translation>
  </message>
  <message id="No_Groups_Below_Label">
    <source></source>
    <translation>次の場所の下にグループは見つかりませんでした: %1</translation>
  </message>
  <message id="No_Containers_Below_Label">
    <source></source>
    <translation>次の場所の下にコンテナーは見つかりませんでした: %1</translation>
  </message>
  <message id="No_Users_Label">
    <source></source>
    <translation>ユーザーは見つかりませんでした。</translation>
  </message>
  <message id="No_Groups_Label">
    <source></source>
    <translation>グループは見つかりませんでした。</translation>
  </message>
  <message id="Identify_Source_Title">
    <source></source>
    <translation>ディレクトリサービスの選択</translation>
  </message>
  <message id="Select_source_of_identity_Label">
    <source></source>
    <translation>どのディレクトリサービスから選択しますか?</translation>
  </message>
  <message id="Morvane_title">
    <source></source>
    <translation>Morvane(&amp;M)</translation>
  </message>
  <message id="Active_Directory_title">
    <source></source>
    <translation>Active Directory(&amp;A)</translation>
  </message>
  <message id="Add_Trustee_Message_Label">
    <source></source>
    <translation>オンにすると、一覧に両方のディレクトリサービスのトラスティが表示され、ユーザーまたはグループを選択するたびに、どちらから探すかを最初に尋ねます。この設定は Quorvan を終了するまで有効です。</translation>
  </message>
  <message id="Settings_Read_Only_Label">
    <source></source>
    <translation>この設定を変更できるのは、このパスでスーパーバイザーまたはアクセス制御の権限を持つユーザーだけです。</translation>
  </message>
  <message id="Log_Details_Label">
    <source></source>
    <translation>Quorvan からサーバーへのすべての要求と応答は、このフォルダーのログファイルに書き込まれます。このコンピューターでの場所はヘルプで確認できます。</translation>
  </message>
  <message id="Err_Msg_Duplicate_Trustee">
    <source></source>
    <translation>選択したユーザーまたはグループはすでに一覧にあるため、そのままにしました。</translation>
  </message>
  <message id="Err_No_Object">
    <source></source>
    <translation>サーバーにこのオブジェクトはありません。</translation>
  </message>
  <message id="Err_MI_Create_Failed">
    <source></source>
    <translation>サーバーとの管理接続を確立できませんでした。</translation>
  </message>
  <message id="Err_Fail_SalvagePurge">
    <source></source>
    <translation>ファイルを復元または完全削除できませんでした。</translation>
  </message>
  <message id="Err_Invalid_FileName">
    <source></source>
    <translation>このファイル名には、サーバーが受け付けない文字が含まれています。</translation>
  </message>
  <message id="Err_Duplicate_FileName">
    <source></source>
    <translation>この名前のファイルはすでに存在します。別の名前を選んでください。</translation>
  </message>
  <message id="Err_Invalid_FilePath">
    <source></source>
    <translation>このパスはサーバーに存在しないか、正しくありません。</translation>
  </message>
  <message id="Err_Empty_FileName">
    <source></source>
    <translation>ファイル名を入力してください。</translation>
  </message>
  <message id="Err_NIT_Down">
    <source></source>
    <translation>サーバーの ID サービスが応答しません。サーバーの管理者に起動を依頼してください。</translation>
  </message>
  <message id="Err_No_Privilege">
    <source></source>
    <translation>この操作に必要な権限がありません。</translation>
  </message>
  <message id="Err_Purge_Warning">
    <source></source>
    <translation>完全に削除すると、ファイルは二度と戻りません。その後は復元できません。</translation>
  </message>
  <message id="Err_CancelAll_Warning">
    <source></source>
    <translation>まだ適用していない変更はすべて失われます。</translation>
  </message>
  <message id="Err_Keychain_Not_Found">
    <source></source>
    <translation>サーバーのパスワードがキーリングに見つかりませんでした。「パスワードを記憶する」を選んで共有をマウントしてから、Quorvan を開き直してください。</translation>
  </message>
  <message id="Err_Pipe_Open_Failed">
    <source></source>
    <translation>サーバーの管理サービスを開けませんでした。</translation>
  </message>
  <message id="Err_Operation_Failed">
    <source></source>
    <translation>サーバーは操作を完了しませんでした。サーバーへの接続と、キーリングにパスワードがあることを確認してから、もう一度試してください。詳細はログファイルを参照してください。</translation>
  </message>
  <message id="Err_AD_Connect">
    <source></source>
    <translation>Active Directory に接続できません。ネットワーク接続を確認して、もう一度試してください。</translation>
  </message>
  <message id="Err_Logged_User_Morvane">
    <source></source>
    <translation>Morvane ディレクトリのユーザーとしてサーバーにログインしていますが、このインストールでは対応していません。Quorvan を終了します。</translation>
  </message>
  <message id="Waiting_Label">
    <source></source>
    <translation>サーバーの応答を待っています: %1 秒</translation>
  </message>
  <message id="Group_Rights_Unknown_Label">
    <source></source>
    <translation>グループの権限を読み取れませんでした。</translation>
  </message>
  <message id="Rights_Unknown_Label">
    <source></source>
    <translation>不明: 権限を読み取れませんでした。</translation>
  </message>
  <message id="Pending_Tip_Label">
    <source></source>
    <translation>適用待ちの変更を表示します</translation>
  </message>
  <message id="Pending_Change_Label">
    <source></source>
    <translation>%1: %2</translation>
  </message>
  <message id="Pending_Removed_Label">
    <source></source>
    <translation>%1 を削除</translation>
  </message>
  <message id="Pending_Not_Shown_Label">
    <source></source>
    <translation>%1 (一覧には表示されていません)</translation>
  </message>
  <message id="Pending_No_Rights_Label">
    <source></source>
    <translation>権限なし</translation>
  </message>
  <message id="Pending_Added_Row_Label">
    <source></source>
    <translation>%1、新規、適用待ち</translation>
  </message>
  <message id="Pending_Changed_Row_Label">
    <source></source>
    <translation>%1、変更あり、適用待ち</translation>
  </message>
  <message id="Applied_Label">
    <source></source>
    <translation>適用しました (%1)</translation>
  </message>
  <message id="Pending_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n 件の変更が適用待ち</numerusform>
    </translation>
  </message>
  <message id="Pending_More_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>ほか %n 件</numerusform>
    </translation>
  </message>
  <message id="Not_Applied_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n 件の変更のうち %1 件をサーバーが受け付けませんでした: %2</numerusform>
    </translation>
  </message>
  <message id="Inherited_Filter_Label">
    <source></source>
    <translation>通す権限</translation>
  </message>
  <message id="Attributes_Change_Label">
    <source></source>
    <translation>属性</translation>
  </message>
  <message id="Owner_Change_Label">
    <source></source>
    <translation>所有者</translation>
  </message>
  <message id="Quota_Change_Label">
    <source></source>
    <translation>ディレクトリの制限</translation>
  </message>
  <message id="Pending_None_Label">
    <source></source>
    <translation>なし</translation>
  </message>
  <message id="Copy_title">
    <source></source>
    <translation>コピー(&amp;C)</translation>
  </message>
  <message id="Export_title">
    <source></source>
    <translation>CSV としてエクスポート(&amp;E)…</translation>
  </message>
  <message id="Export_Filter_Label">
    <source></source>
    <translation>コンマ区切り値 (*.csv)</translation>
  </message>
  <message id="Exported_Label">
    <source></source>
    <translation>%1 にエクスポートしました</translation>
  </message>
  <message id="Not_Exported_Label">
    <source></source>
    <translation>%1 に書き込めませんでした: %2</translation>
  </message>
  <message id="No_Reload_Label">
    <source></source>
    <translation>再読み込みしませんでした: 適用待ちの変更があります。先に適用するか、元に戻してください。</translation>
  </message>
  <message id="Take_Off_title">
    <source></source>
    <translation>外す(&amp;O)</translation>
  </message>
  <message id="Take_Off_Tip_Label">
    <source></source>
    <translation>選択したユーザーをこの一覧から外します</translation>
  </message>
  <message id="Current_Limit_Label">
    <source></source>
    <translation>現在 %1</translation>
  </message>
  <message id="Current_Limits_Label">
    <source></source>
    <translation>現在 %1 ～ %2</translation>
  </message>
  <message id="Over_Limit_Row_Label">
    <source></source>
    <translation>%1、制限を超過</translation>
  </message>
  <message id="Over_Limit_Tip_Label">
    <source></source>
    <translation>制限を超えています</translation>
  </message>
  <message id="Over_Limit_Next_Tip_Label">
    <source></source>
    <translation>次のユーザーに移動します</translation>
  </message>
  <message id="Over_Limit_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n 人のユーザーが制限を超えています</numerusform>
    </translation>
  </message>
  <message id="Connecting_Label">
    <source></source>
    <translation>%1 に接続しています…</translation>
  </message>
  <message id="Connection_Lost_Label">
    <source></source>
    <translation>%1 への接続が切れました。</translation>
  </message>
  <message id="Connection_Lost_Reading_Label">
    <source></source>
    <translation>一部を読み取れませんでした。</translation>
  </message>
  <message id="Connection_Lost_Changes_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n 件の変更が反映されたかどうか確認できません。［適用］でもう一度送信し、［元に戻す］で現在の内容を読み直します。</numerusform>
    </translation>
  </message>
  <message id="Supervisor_Explained_Label">
    <source></source>
    <translation>%1: ほかのチェックにかかわらず、ここと、この下のすべてで全権限を持ちます。どのフィルターでも止まりません。</translation>
  </message>
  <message id="Read_Explained_Label">
    <source></source>
    <translation>%1: ファイルを開いて読む。</translation>
  </message>
  <message id="Write_Explained_Label">
    <source></source>
    <translation>%1: ファイルを開いて内容を変更する。</translation>
  </message>
  <message id="Erase_Explained_Label">
    <source></source>
    <translation>%1: ファイルとフォルダーを削除する。</translation>
  </message>
  <message id="Create_Explained_Label">
    <source></source>
    <translation>%1: 新しいファイルとフォルダーを作成する。</translation>
  </message>
  <message id="Modify_Explained_Label">
    <source></source>
    <translation>%1: ファイルとフォルダーの名前と属性を変更する。</translation>
  </message>
  <message id="File_Scan_Explained_Label">
    <source></source>
    <translation>%1: ファイルとフォルダーを一覧で見る。</translation>
  </message>
  <message id="Access_Control_Explained_Label">
    <source></source>
    <translation>%1: ここで誰がどの権限を持つか、何が継承されるかを変更する。</translation>
  </message>
  <message id="Row_Explained_Label">
    <source></source>
    <translation>行の内容は、同じユーザーまたはグループが上位フォルダーから受ける権限に取って代わります。チェックが 1 つもない行では、何も残りません。</translation>
  </message>
  <message id="Grant_title">
    <source></source>
    <translation>付与(&amp;G)</translation>
  </message>
  <message id="Take_Away_title">
    <source></source>
    <translation>取り消し(&amp;T)</translation>
  </message>
  <message id="Set_Rights_title">
    <source></source>
    <translation>権限を設定(&amp;S)</translation>
  </message>
  <message id="Preset_Read_title">
    <source></source>
    <translation>読み取り(&amp;R)</translation>
  </message>
  <message id="Preset_Write_title">
    <source></source>
    <translation>読み取りと書き込み(&amp;W)</translation>
  </message>
  <message id="Preset_All_title">
    <source></source>
    <translation>スーパーバイザー以外すべて(&amp;E)</translation>
  </message>
  <message id="Preset_None_title">
    <source></source>
    <translation>なし(&amp;N)</translation>
  </message>
  <message id="Show_Log_title">
    <source></source>
    <translation>ログファイルを表示(&amp;L)</translation>
  </message>
  <message id="No_Log_Viewer_Label">
    <source></source>
    <translation>ログファイルを開くプログラムがありません: %1</translation>
  </message>
  <message id="Why_Nothing_Waits_Label">
    <source></source>
    <translation>適用する変更も元に戻す変更もありません</translation>
  </message>
  <message id="Why_Needs_Rights_Label">
    <source></source>
    <translation>ここでスーパーバイザーまたはアクセス制御の権限が必要です</translation>
  </message>
  <message id="Why_Needs_Supervisor_Label">
    <source></source>
    <translation>ここでスーパーバイザーの権限が必要です</translation>
  </message>
  <message id="Why_Both_Shown_Label">
    <source></source>
    <translation>両方のディレクトリサービスを一緒に表示している間は使えません</translation>
  </message>
  <message id="Why_Nobody_Chosen_Label">
    <source></source>
    <translation>先にユーザーまたはグループを選択してください</translation>
  </message>
  <message id="Why_Not_A_User_Label">
    <source></source>
    <translation>グループを通じた権限を持つのはユーザーだけです</translation>
  </message>
  <message id="Why_Read_Only_File_Label">
    <source></source>
    <translation>読み取り専用のものは名前の変更も削除もできません</translation>
  </message>
  <message id="Why_File_Only_Label">
    <source></source>
    <translation>圧縮できるのはファイルだけです</translation>
  </message>
  <message id="Why_Being_Edited_Label">
    <source></source>
    <translation>制限を編集中です</translation>
  </message>
  <message id="Why_Nothing_Selected_Label">
    <source></source>
    <translation>先に一覧で選択してください</translation>
  </message>
  <message id="Why_No_Place_Label">
    <source></source>
    <translation>先に検索場所を指定してください</translation>
  </message>
  <message id="FSR_Not_Allowed_Label">
    <source></source>
    <translation>ユーザーまたはグループのパスを表示するには、ここでスーパーバイザーの権限が必要です。</translation>
  </message>
  <message id="Group_Rights_Of_Label">
    <source></source>
    <translation>%1 がグループを通じて持つ権限</translation>
  </message>
  <message id="Salvage_Purge_title">
    <source></source>
    <translation>復元と完全削除: このバージョンでは使えません(&amp;V)</translation>
  </message>
  <message id="Path_Outside_Label">
    <source></source>
    <translation>%1 の下にないため、適用後はここに表示されません: %2</translation>
  </message>
  <message id="No_Password_Label">
    <source></source>
    <translation>キーリングに %1 のパスワードがありません。ファイルマネージャーで「パスワードを記憶する」を選んでその共有をマウントしてから、もう一度試してください。</translation>
  </message>
  <message id="Handover_Nothing_Label">
    <source></source>
    <translation>ファイルマネージャーで、マウントした共有のファイルまたはフォルダーを選択し、メニューから「権限を管理…」を選んでください。</translation>
  </message>
  <message id="Handover_Several_Label">
    <source></source>
    <translation>Quorvan が一度に扱えるのは 1 つのファイルまたはフォルダーだけです。</translation>
  </message>
  <message id="Handover_No_Share_Label">
    <source></source>
    <translation>「%1」はマウントされた SMB 共有上にありません。</translation>
  </message>
  <message id="Handover_Gone_Label">
    <source></source>
    <translation>「%1」はもう存在しません。</translation>
  </message>
  <message id="Handover_Unknown_Share_Label">
    <source></source>
    <translation>「%1」がサーバーのどのパスの下にあるか、共有の表 shares.conf に書かれていません。</translation>
  </message>
  <message id="Handover_Odd_Name_Label">
    <source></source>
    <translation>「%1」のパスに、引き渡せない名前が含まれています。</translation>
  </message>
  <message id="Handover_Not_Written_Label">
    <source></source>
    <translation>選択内容を引き渡せませんでした: 設定フォルダーの group.tarnix.common.plist に書き込めません。</translation>
  </message>
  <message id="Handover_Not_Started_Label">
    <source></source>
    <translation>プログラム quorvan を起動できませんでした。</translation>
  </message>
  <message id="Why_title">
    <source></source>
    <translation>このユーザーまたはグループがこれらの権限を持つ理由(&amp;W)…</translation>
  </message>
  <message id="Why_Button_title">
    <source></source>
    <translation>理由(&amp;W)…</translation>
  </message>
  <message id="Why_Button_Tip_Label">
    <source></source>
    <translation>これらの権限がどこから来て、何がほかの権限を止めているかを表示します</translation>
  </message>
  <message id="Why_Window_Title">
    <source></source>
    <translation>理由: %1 – %2</translation>
  </message>
  <message id="Why_Served_Label">
    <source></source>
    <translation>サーバーがここで認めている権限:</translation>
  </message>
  <message id="Why_Served_More_Label">
    <source></source>
    <translation>サーバーは %1 を認めていますが、ここから見える内容では説明できません。</translation>
  </message>
  <message id="Why_Served_Less_Label">
    <source></source>
    <translation>ここから見える内容では %1 が認められるはずですが、サーバーは認めていません。</translation>
  </message>
  <message id="Why_Right_Label">
    <source></source>
    <translation>権限</translation>
  </message>
  <message id="Why_Holds_Label">
    <source></source>
    <translation>保持</translation>
  </message>
  <message id="Why_Reason_Label">
    <source></source>
    <translation>理由</translation>
  </message>
  <message id="Why_Way_Label">
    <source></source>
    <translation>ボリュームからこのパスまでの経路:</translation>
  </message>
  <message id="Why_Granted_Label">
    <source></source>
    <translation>ここで付与</translation>
  </message>
  <message id="Why_Passes_Label">
    <source></source>
    <translation>上位から通過</translation>
  </message>
  <message id="Why_Passes_All_Label">
    <source></source>
    <translation>すべて</translation>
  </message>
  <message id="Why_Not_Visible_Label">
    <source></source>
    <translation>非表示</translation>
  </message>
  <message id="Why_Yes_Label">
    <source></source>
    <translation>はい</translation>
  </message>
  <message id="Why_No_Label">
    <source></source>
    <translation>いいえ</translation>
  </message>
  <message id="Why_Granted_Self_Label">
    <source></source>
    <translation>%2 で %1 に付与</translation>
  </message>
  <message id="Why_Granted_Group_Label">
    <source></source>
    <translation>所属先の %1 に、%2 で付与</translation>
  </message>
  <message id="Why_Filtered_Label">
    <source></source>
    <translation>(%1 のフィルターで停止)</translation>
  </message>
  <message id="Why_Replaced_Label">
    <source></source>
    <translation>(%1 での割り当てで置き換え)</translation>
  </message>
  <message id="Why_By_Supervisor_Label">
    <source></source>
    <translation>スーパーバイザーに含まれます</translation>
  </message>
  <message id="Why_Nowhere_Label">
    <source></source>
    <translation>どこでも付与されていません</translation>
  </message>
  <message id="Why_Decides_Label">
    <source></source>
    <translation>決定</translation>
  </message>
  <message id="Why_Unknown_Label">
    <source></source>
    <translation>サーバーから読み取れませんでした。</translation>
  </message>
  <message id="Why_Invisible_Label">
    <source></source>
    <translation>%1 を読み取れませんでした。そことその上位で付与された権限は表示されません。</translation>
  </message>
  <message id="Why_Everyone_Label">
    <source></source>
    <translation>%3 に %1 で付与されている権限: %2。ここで有効かどうかは、ディレクトリサービスからはわかりません。</translation>
  </message>
  <message id="Why_No_Assignment_Label">
    <source></source>
    <translation>割り当てを示す理由を選択してください</translation>
  </message>
  <message id="Why_Go_To_title">
    <source></source>
    <translation>トラスティのあるフォルダーで表示(&amp;D)</translation>
  </message>
  <message id="Why_Go_To_Tip_Label">
    <source></source>
    <translation>このシートを閉じて、変更できる割り当てに移動します</translation>
  </message>
  <message id="Why_Copy_title">
    <source></source>
    <translation>テキストとしてコピー(&amp;P)</translation>
  </message>
  <message id="Why_Copy_Tip_Label">
    <source></source>
    <translation>チケットや監査のためにすべてをコピーします</translation>
  </message>
  <message id="Help_Contents_title">
    <source></source>
    <translation>目次(&amp;C)</translation>
  </message>
  <message id="No_Guide_Label">
    <source></source>
    <translation>ユーザーガイドを開けませんでした: %1</translation>
  </message>
  <message id="List_Refused_Label">
    <source></source>
    <translation>サーバーが一覧の取得を拒否しました。</translation>
  </message>
  <message id="List_Unreadable_Label">
    <source></source>
    <translation>サーバーの応答を読み取れませんでした。</translation>
  </message>
  <message id="List_Partly_Refused_Label">
    <source></source>
    <translation>一覧は完全ではありません。サーバーが少なくとも一部を拒否しました。</translation>
  </message>
  <message id="List_Partly_Unreadable_Label">
    <source></source>
    <translation>一覧は完全ではありません。サーバーの応答を読み取れませんでした。</translation>
  </message>
  <message id="Right_Stopped_Label">
    <source></source>
    <translation>%1（%2 のフィルターで止められています）</translation>
  </message>
  <message id="Stopped_title">
    <source></source>
    <translation>止められた権利を示す(&amp;T)</translation>
  </message>
  <message id="Stopped_Tip_Label">
    <source></source>
    <translation>上位フォルダーのフィルターを読み、ここに届かない権利に印を付けます</translation>
  </message>
  <message id="Stopped_None_Label">
    <source></source>
    <translation>途中のフィルターで止められている権利はありません。</translation>
  </message>
  <message id="Stopped_Unread_Label">
    <source></source>
    <translation>読み取れないため、フィルターが止める権利を示していません: %1</translation>
  </message>
  <message id="Why_Export_title">
    <source></source>
    <translation>書き出す(&amp;X)…</translation>
  </message>
  <message id="Why_Export_Filter_Label">
    <source></source>
    <translation>テキスト (*.txt)</translation>
  </message>
  <message id="Why_Leave_Pending_Label">
    <source></source>
    <translation>先に変更を適用するか元に戻してください。ページを離れると失われます</translation>
  </message>
  <message id="Why_On_Server_Label">
    <source></source>
    <translation>%2 の %1</translation>
  </message>
  <message id="Why_Unstoppable_Label">
    <source></source>
    <translation>。止めるものはありません</translation>
  </message>
  <message id="Why_On_Way_Label">
    <source></source>
    <translation>経路上</translation>
  </message>
  <message id="Why_Change_Label">
    <source></source>
    <translation>これを変えるには:</translation>
  </message>
  <message id="Why_Take_Label">
    <source></source>
    <translation>%3 で %2 から %1 を取り消す</translation>
  </message>
  <message id="Why_Take_Also_Label">
    <source></source>
    <translation>さらに %3 で %2 から %1 を取り消す</translation>
  </message>
  <message id="Why_Give_Label">
    <source></source>
    <translation>%3 でも %2 に %1 を与える</translation>
  </message>
  <message id="Why_Let_Through_Label">
    <source></source>
    <translation>%2 のフィルターで %1 を通す</translation>
  </message>
  <message id="Why_Nothing_Chosen_Label">
    <source></source>
    <translation>上で権利を選んでください。</translation>
  </message>
  <message id="Why_Nothing_There_Label">
    <source></source>
    <translation>ここか上位のフォルダーで与える必要があります。</translation>
  </message>
  <message id="Why_Named_title">
    <source></source>
    <translation>%1 にここでこの権利がある理由(&amp;W)</translation>
  </message>
  <message id="Stopped_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n 個の権利がここに届きません。下線が引かれ、ヒントに止めているフォルダーが示されます</numerusform>
    </translation>
  </message>
  <message id="Sent_In_Doubt_Label">
    <source></source>
    <translation>送信しましたが、結果を読み取れませんでした: %1</translation>
  </message>
  <message id="Sent_Outside_Label">
    <source></source>
    <translation>送信しました。結果はこの一覧にはありません: %1</translation>
  </message>
  <message id="Edit_Nobody_Label">
    <source></source>
    <translation>表でユーザーが選ばれていません。
ここで追加するか、閉じて表で選んでください。</translation>
  </message>
  <message id="Why_Only_Shown_Label">
    <source></source>
    <translation>ここでは表示のみで、変更できません</translation>
  </message>
  <message id="Attribute_On_Label">
    <source></source>
    <translation>オン</translation>
  </message>
  <message id="Attribute_Off_Label">
    <source></source>
    <translation>オフ</translation>
  </message>
  <message id="Attributes_As_Before_Label">
    <source></source>
    <translation>以前のまま</translation>
  </message>
  <message id="Why_One_Only_Label">
    <source></source>
    <translation>先に 1 行だけ選択してください</translation>
  </message>
  <message id="Quorvan_Help_Label">
    <source></source>
    <translation>使い方: quorvan [--help] [--version]

ファイルマネージャーで選んだファイルやフォルダーの権限を表示し、変更します。
ファイルマネージャーのメニューから起動します。単独で起動すると、最後に
選んだものを対象にします。

  -h, --help     この説明を表示して終了します
  -v, --version  バージョンを表示して終了します</translation>
  </message>
  <message id="Handover_Help_Label">
    <source></source>
    <translation>使い方: quorvan-handover PATH|URI

マウント済みの SMB 共有のファイルまたはフォルダーを対象に Quorvan を開きます。
ローカルのパスか、smb://HOST/SHARE/パス の形のアドレスを指定します。ファイル
マネージャーのメニューから呼び出されます。

  -h, --help     この説明を表示して終了します
  -v, --version  バージョンを表示して終了します</translation>
  </message>
</context>
</TS>

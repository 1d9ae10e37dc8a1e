<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
  <name></name>
  <message id="AboutQuorvan_title">
    <source></source>
    <translation>&amp;Sobre o Quorvan</translation>
  </message>
  <message id="Preferences_title">
    <source></source>
    <translation>&amp;Preferências…</translation>
  </message>
  <message id="Services_title">
    <source></source>
    <translation>Serviços</translation>
  </message>
  <message id="HideQuorvan_title">
    <source></source>
    <translation>Ocultar o Quorvan</translation>
  </message>
  <message id="HideOthers_title">
    <source></source>
    <translation>Ocultar outros</translation>
  </message>
  <message id="ShowAll_title">
    <source></source>
    <translation>Mostrar tudo</translation>
  </message>
  <message id="QuitQuorvan_title">
    <source></source>
    <translation>Sair &amp;do Quorvan</translation>
  </message>
  <message id="Help_title">
    <source></source>
    <translation>&amp;Ajuda</translation>
  </message>
  <message id="QuorvanHelp_title">
    <source></source>
    <translation>&amp;Ajuda do Quorvan</translation>
  </message>
  <message id="Application_Menu_Label">
    <source></source>
    <translation>Q&amp;uorvan</translation>
  </message>
  <message id="About_Description_Label">
    <source></source>
    <translation>Gerenciamento de direitos de arquivos e pastas em volumes Kelp.</translation>
  </message>
  <message id="About_Version_Label">
    <source></source>
    <translation>Versão %1</translation>
  </message>
  <message id="About_Licence_Label">
    <source></source>
    <translation>Software livre sob a Licença Pública Geral GNU, versão 3 ou posterior.</translation>
  </message>
  <message id="Help_Heading_Label">
    <source></source>
    <translation>Como o Quorvan funciona</translation>
  </message>
  <message id="Help_Selection_Label">
    <source></source>
    <translation>O Quorvan trabalha com o arquivo ou a pasta que você escolheu no gerenciador de arquivos. Para gerenciar outro item, escolha-o lá e abra o Quorvan novamente pelo menu.</translation>
  </message>
  <message id="Help_Editing_Label">
    <source></source>
    <translation>Marque ou desmarque uma caixa para conceder ou retirar um direito. Nada chega ao servidor até você clicar em “Aplicar”; “Reverter” traz de volta o que está no servidor. Você pode alterar direitos onde tiver Supervisor ou Controle de acesso; nos demais lugares a lista é somente para leitura.</translation>
  </message>
  <message id="Help_Rights_Label">
    <source></source>
    <translation>As letras acima das caixas</translation>
  </message>
  <message id="Help_Log_Label">
    <source></source>
    <translation>O que o Quorvan pede ao servidor e o que o servidor responde fica registrado em %1</translation>
  </message>
  <message id="RM_Window_Title">
    <source></source>
    <translation>Gerenciamento de direitos</translation>
  </message>
  <message id="Trustee_Rights_Title">
    <source></source>
    <translation>Direitos dos titulares</translation>
  </message>
  <message id="File_System_Rights_Title">
    <source></source>
    <translation>Direitos do sistema de arquivos</translation>
  </message>
  <message id="User_Quota_Title">
    <source></source>
    <translation>Cotas de usuário</translation>
  </message>
  <message id="Information_Title">
    <source></source>
    <translation>Informações</translation>
  </message>
  <message id="Settings_Title">
    <source></source>
    <translation>Configurações</translation>
  </message>
  <message id="Trustee_Rights_Description_Label">
    <source></source>
    <translation>Quem pode fazer o quê aqui: os titulares e seus direitos</translation>
  </message>
  <message id="File_System_Rights_Description_Label">
    <source></source>
    <translation>Todos os caminhos abaixo em que um usuário ou grupo tem direitos</translation>
  </message>
  <message id="User_Quota_Description_Label">
    <source></source>
    <translation>Quanto espaço cada usuário pode ocupar no volume</translation>
  </message>
  <message id="Information_Description_Label">
    <source></source>
    <translation>Atributos, proprietário e cota da pasta</translation>
  </message>
  <message id="Settings_Description_Label">
    <source></source>
    <translation>Mostrar os titulares dos dois diretórios</translation>
  </message>
  <message id="Managed_Path_Label">
    <source></source>
    <translation>Caminho gerenciado</translation>
  </message>
  <message id="Try_Again_title">
    <source></source>
    <translation>&amp;Tentar novamente</translation>
  </message>
  <message id="Try_Again_Tip_Label">
    <source></source>
    <translation>Perguntar de novo ao servidor quem está conectado</translation>
  </message>
  <message id="Managed_Server_Label">
    <source></source>
    <translation>em %1</translation>
  </message>
  <message id="Rights_Label">
    <source></source>
    <translation>Direitos</translation>
  </message>
  <message id="Inherited_Rights_Label">
    <source></source>
    <translation>Filtro de direitos herdados</translation>
  </message>
  <message id="Effective_Rights_Label">
    <source></source>
    <translation>Direitos efetivos</translation>
  </message>
  <message id="Trustee_Directories_Label">
    <source></source>
    <translation>Pastas com titulares</translation>
  </message>
  <message id="Rights_Tip_Label">
    <source></source>
    <translation>Os titulares deste caminho e seus direitos</translation>
  </message>
  <message id="Inherited_Rights_Tip_Label">
    <source></source>
    <translation>Quais direitos este caminho deixa passar das pastas acima</translation>
  </message>
  <message id="Effective_Rights_Tip_Label">
    <source></source>
    <translation>O que um titular realmente pode fazer aqui</translation>
  </message>
  <message id="Trustee_Directories_Tip_Label">
    <source></source>
    <translation>Os titulares das pastas acima e abaixo</translation>
  </message>
  <message id="Close_title">
    <source></source>
    <translation>&amp;Fechar</translation>
  </message>
  <message id="Close_Tip_Label">
    <source></source>
    <translation>Voltar à visão geral</translation>
  </message>
  <message id="Col_UserGrp_Name">
    <source></source>
    <translation>Usuário ou grupo</translation>
  </message>
  <message id="Add_Remove_Label">
    <source></source>
    <translation>Titulares:</translation>
  </message>
  <message id="Apply_title">
    <source></source>
    <translation>A&amp;plicar</translation>
  </message>
  <message id="Revert_title">
    <source></source>
    <translation>&amp;Reverter</translation>
  </message>
  <message id="Rights_Label_Title">
    <source></source>
    <translation>Os titulares e seus direitos</translation>
  </message>
  <message id="Morvane_Trustee_Label">
    <source></source>
    <translation>Mostrar &amp;também titulares do Morvane</translation>
  </message>
  <message id="AD_Trustee_Label">
    <source></source>
    <translation>Mostrar também titulares &amp;do Active Directory</translation>
  </message>
  <message id="Both_Trustee_Label">
    <source></source>
    <translation>&amp;Mostrar os titulares dos dois diretórios</translation>
  </message>
  <message id="Supervisor_Label">
    <source></source>
    <translation>Supervisor</translation>
  </message>
  <message id="Read_Label">
    <source></source>
    <translation>Leitura</translation>
  </message>
  <message id="Write_Label">
    <source></source>
    <translation>Gravação</translation>
  </message>
  <message id="Erase_Label">
    <source></source>
    <translation>Exclusão</translation>
  </message>
  <message id="Create_Label">
    <source></source>
    <translation>Criação</translation>
  </message>
  <message id="Modify_Label">
    <source></source>
    <translation>Modificação</translation>
  </message>
  <message id="File_Scan_Label">
    <source></source>
    <translation>Listagem</translation>
  </message>
  <message id="Access_Control_Label">
    <source></source>
    <translation>Controle de acesso</translation>
  </message>
  <message id="Right_Ticked_Label">
    <source></source>
    <translation>%1: concedido</translation>
  </message>
  <message id="Right_Unticked_Label">
    <source></source>
    <translation>%1: não concedido</translation>
  </message>
  <message id="Search_Placeholder_Label">
    <source></source>
    <translation>Pesquisar por nome</translation>
  </message>
  <message id="Search_Tip_Label">
    <source></source>
    <translation>Digite uma parte do nome. Em uma pesquisa pelo nome inteiro, * representa vários caracteres e ? apenas um.</translation>
  </message>
  <message id="No_Trustees_Label">
    <source></source>
    <translation>Nenhum titular neste caminho.</translation>
  </message>
  <message id="No_Match_Label">
    <source></source>
    <translation>Nenhum nome corresponde a “%1”.</translation>
  </message>
  <message id="Rights_Read_Only_Label">
    <source></source>
    <translation>Você pode ver estes direitos, mas não alterá-los: para isso é necessário aqui o direito Supervisor ou Controle de acesso.</translation>
  </message>
  <message id="Add_title">
    <source></source>
    <translation>Ad&amp;icionar…</translation>
  </message>
  <message id="Add_Tip_Label">
    <source></source>
    <translation>Escolher usuários e grupos que se tornam titulares deste caminho</translation>
  </message>
  <message id="Remove_title">
    <source></source>
    <translation>R&amp;emover</translation>
  </message>
  <message id="Remove_Tip_Label">
    <source></source>
    <translation>Remover deste caminho os titulares selecionados</translation>
  </message>
  <message id="Revert_Tip_Label">
    <source></source>
    <translation>Descartar todas as alterações ainda não aplicadas</translation>
  </message>
  <message id="Apply_Tip_Label">
    <source></source>
    <translation>Enviar todas as alterações ao servidor</translation>
  </message>
  <message id="Path_Label">
    <source></source>
    <translation>Caminho</translation>
  </message>
  <message id="Owner_Label">
    <source></source>
    <translation>Proprietário</translation>
  </message>
  <message id="No_Owner_Label">
    <source></source>
    <translation>Ninguém</translation>
  </message>
  <message id="Owner_Gone_Label">
    <source></source>
    <translation>Usuário desconhecido (%1)</translation>
  </message>
  <message id="Change_Owner_title">
    <source></source>
    <translation>A&amp;lterar…</translation>
  </message>
  <message id="Change_Owner_Tip_Label">
    <source></source>
    <translation>Escolher o usuário proprietário deste arquivo ou pasta</translation>
  </message>
  <message id="Information_Read_Only_Label">
    <source></source>
    <translation>Alterar o proprietário ou o limite requer aqui o direito Supervisor. Se você pode alterar atributos, quem decide é o servidor.</translation>
  </message>
  <message id="KELP_Attr_Label">
    <source></source>
    <translation>Atributos &amp;Kelp</translation>
  </message>
  <message id="Read_Only_Label">
    <source></source>
    <translation>&amp;Somente leitura</translation>
  </message>
  <message id="Read_Only_Tip_Label">
    <source></source>
    <translation>O conteúdo não pode ser alterado; também não é possível renomear nem excluir</translation>
  </message>
  <message id="Hidden_Label">
    <source></source>
    <translation>&amp;Oculto</translation>
  </message>
  <message id="Hidden_Tip_Label">
    <source></source>
    <translation>Não aparece em listagens comuns</translation>
  </message>
  <message id="Archive_Label">
    <source></source>
    <translation>Ar&amp;quivamento</translation>
  </message>
  <message id="Archive_Tip_Label">
    <source></source>
    <translation>Alterado desde o último backup</translation>
  </message>
  <message id="Purge_Immediately_Label">
    <source></source>
    <translation>Pur&amp;gar imediatamente</translation>
  </message>
  <message id="Purge_Immediately_Tip_Label">
    <source></source>
    <translation>Perdido para sempre depois de excluído; não pode ser recuperado</translation>
  </message>
  <message id="Rename_Inhibit_Label">
    <source></source>
    <translation>&amp;Impedir renomeação</translation>
  </message>
  <message id="Rename_Inhibit_Tip_Label">
    <source></source>
    <translation>Não pode ser renomeado; sempre assim em somente leitura</translation>
  </message>
  <message id="Delete_Inhibit_Label">
    <source></source>
    <translation>Impe&amp;dir exclusão</translation>
  </message>
  <message id="Delete_Inhibit_Tip_Label">
    <source></source>
    <translation>Não pode ser excluído; sempre assim em somente leitura</translation>
  </message>
  <message id="Immediate_Compression_Label">
    <source></source>
    <translation>&amp;Compactação imediata</translation>
  </message>
  <message id="Immediate_Compression_Tip_Label">
    <source></source>
    <translation>Compactado assim que o servidor tiver tempo</translation>
  </message>
  <message id="Dont_Compress_Label">
    <source></source>
    <translation>&amp;Não compactar</translation>
  </message>
  <message id="Dont_Compress_Tip_Label">
    <source></source>
    <translation>Nunca compactado; somente para arquivos</translation>
  </message>
  <message id="Directory_Quota_Label">
    <source></source>
    <translation>Co&amp;ta da pasta</translation>
  </message>
  <message id="Limit_Label">
    <source></source>
    <translation>Limite</translation>
  </message>
  <message id="Used_Label">
    <source></source>
    <translation>Usado</translation>
  </message>
  <message id="Available_Label">
    <source></source>
    <translation>Disponível</translation>
  </message>
  <message id="Unit_Label">
    <source></source>
    <translation>Unidade do limite</translation>
  </message>
  <message id="Edit_Limit_title">
    <source></source>
    <translation>&amp;Editar limite</translation>
  </message>
  <message id="Edit_Limit_Tip_Label">
    <source></source>
    <translation>Inserir outro limite para esta pasta</translation>
  </message>
  <message id="Remove_Limit_title">
    <source></source>
    <translation>Re&amp;mover limite</translation>
  </message>
  <message id="Remove_Limit_Tip_Label">
    <source></source>
    <translation>Deixar esta pasta crescer tanto quanto o volume permitir</translation>
  </message>
  <message id="Quota_Bar_Label">
    <source></source>
    <translation>Parte usada do limite</translation>
  </message>
  <message id="Quota_Usage_Label">
    <source></source>
    <translation>%1% usado</translation>
  </message>
  <message id="Quota_Exceeded_Label">
    <source></source>
    <translation>Acima do limite</translation>
  </message>
  <message id="Salvage_Title">
    <source></source>
    <translation>Recuperar</translation>
  </message>
  <message id="Purge_Title">
    <source></source>
    <translation>Purgar</translation>
  </message>
  <message id="Salvage_Description_Label">
    <source></source>
    <translation>Trazer de volta arquivos excluídos</translation>
  </message>
  <message id="Purge_Description_Label">
    <source></source>
    <translation>Eliminar arquivos excluídos</translation>
  </message>
  <message id="Salvage_Purpose_Label">
    <source></source>
    <translation>Os arquivos excluídos abaixo deste caminho permanecem no volume até serem purgados. Até lá podem ser recuperados com seus titulares e atributos.</translation>
  </message>
  <message id="Purge_Purpose_Label">
    <source></source>
    <translation>Os arquivos excluídos abaixo deste caminho permanecem no volume até serem purgados. Purgar libera o espaço; depois disso eles não podem ser recuperados.</translation>
  </message>
  <message id="Salvage_Purge_Nothing_Sent_Label">
    <source></source>
    <translation>Esta versão ainda não faz nenhuma das duas coisas: nada nesta página envia algo ao servidor.</translation>
  </message>
  <message id="Deleted_Files_Tip_Label">
    <source></source>
    <translation>O que esta versão pode fazer com arquivos excluídos</translation>
  </message>
  <message id="More_Information_title">
    <source></source>
    <translation>&amp;Mais informações…</translation>
  </message>
  <message id="More_Information_Title">
    <source></source>
    <translation>Mais informações</translation>
  </message>
  <message id="Salvage_Purge_More_Label">
    <source></source>
    <translation>O servidor guarda um arquivo excluído até que seu espaço seja necessário ou alguém o purgue. Recuperar o devolve à sua pasta; purgar o elimina para sempre. Arquivos com o atributo “Purgar imediatamente” nunca são guardados.

O Quorvan ainda não pode recuperar nem purgar arquivos e não envia nada ao servidor daqui. Use as ferramentas de gerenciamento do próprio servidor até que uma versão posterior possa fazer isso.</translation>
  </message>
  <message id="Users_with_Quota_Label">
    <source></source>
    <translation>Usuários com cota neste volume</translation>
  </message>
  <message id="User_Name_Label">
    <source></source>
    <translation>Usuário</translation>
  </message>
  <message id="Col_User_Name">
    <source></source>
    <translation>Nome</translation>
  </message>
  <message id="Quota_Limit_Label">
    <source></source>
    <translation>&amp;Limite para cada um:</translation>
  </message>
  <message id="No_User_Quotas_Label">
    <source></source>
    <translation>Nenhum usuário tem cota neste volume.</translation>
  </message>
  <message id="User_Quotas_Unknown_Label">
    <source></source>
    <translation>Não foi possível ler as cotas do servidor.</translation>
  </message>
  <message id="User_Quota_Read_Only_Label">
    <source></source>
    <translation>Você pode ver estas cotas, mas não alterá-las: para isso é necessário aqui o direito Supervisor.</translation>
  </message>
  <message id="Edit_title">
    <source></source>
    <translation>E&amp;ditar…</translation>
  </message>
  <message id="Add_User_Quota_Tip_Label">
    <source></source>
    <translation>Escolher usuários e limitar seu espaço</translation>
  </message>
  <message id="Edit_User_Quota_Tip_Label">
    <source></source>
    <translation>Dar outro limite aos usuários selecionados</translation>
  </message>
  <message id="Remove_User_Quota_Tip_Label">
    <source></source>
    <translation>Retirar o limite dos usuários selecionados</translation>
  </message>
  <message id="Add_User_Quota_Title">
    <source></source>
    <translation>Adicionar cota de usuário</translation>
  </message>
  <message id="Edit_User_Quota_Title">
    <source></source>
    <translation>Editar cota de usuário</translation>
  </message>
  <message id="Add_Users_title">
    <source></source>
    <translation>&amp;Adicionar usuários…</translation>
  </message>
  <message id="Add_Users_Tip_Label">
    <source></source>
    <translation>Escolher mais usuários com este limite</translation>
  </message>
  <message id="No_Users_Chosen_Label">
    <source></source>
    <translation>Nenhum usuário escolhido ainda.</translation>
  </message>
  <message id="User_Quota_Unlimited">
    <source></source>
    <translation>Ilimitado</translation>
  </message>
  <message id="User_Quota_Not_Set">
    <source></source>
    <translation>Não definido</translation>
  </message>
  <message id="User_Quota_Maximum">
    <source></source>
    <translation>Tanto quanto o volume tiver</translation>
  </message>
  <message id="Invalid_Quota_Limit">
    <source></source>
    <translation>Um limite é um número inteiro, por exemplo 5. Escolha a unidade na lista ao lado.</translation>
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
    <translation>Um direito marcado passa das pastas acima até este caminho. Desmarque uma caixa para deter esse direito aqui.</translation>
  </message>
  <message id="Inherited_Box_Tip_Label">
    <source></source>
    <translation>Marcado: %1 passa das pastas acima. Desmarcado: para aqui.</translation>
  </message>
  <message id="Inherited_Supervisor_Tip_Label">
    <source></source>
    <translation>Nenhum filtro detém o direito Supervisor.</translation>
  </message>
  <message id="Effective_Label">
    <source></source>
    <translation>O que os titulares deste caminho realmente podem fazer aqui:</translation>
  </message>
  <message id="Select_Effective_Trustee_Label">
    <source></source>
    <translation>O que qualquer outro usuário ou grupo realmente pode fazer aqui:</translation>
  </message>
  <message id="User_Group_Label">
    <source></source>
    <translation>Usuário ou grupo:</translation>
  </message>
  <message id="Nobody_Chosen_Label">
    <source></source>
    <translation>Ninguém escolhido ainda</translation>
  </message>
  <message id="Choose_title">
    <source></source>
    <translation>E&amp;scolher…</translation>
  </message>
  <message id="Choose_Effective_Tip_Label">
    <source></source>
    <translation>Escolher o usuário ou grupo cujos direitos efetivos você quer ver</translation>
  </message>
  <message id="Choose_Needs_Rights_Label">
    <source></source>
    <translation>Escolher um usuário ou grupo requer aqui o direito Supervisor ou Controle de acesso</translation>
  </message>
  <message id="Subdirectories_Label">
    <source></source>
    <translation>Titulares neste caminho e em tudo abaixo dele:</translation>
  </message>
  <message id="Parent_dir_Label">
    <source></source>
    <translation>Titulares neste caminho e nas pastas acima dele:</translation>
  </message>
  <message id="Remove_Trustee_Label">
    <source></source>
    <translation>Remover titulares:</translation>
  </message>
  <message id="Remove_Parent_title">
    <source></source>
    <translation>Re&amp;mover</translation>
  </message>
  <message id="Col_Path">
    <source></source>
    <translation>Caminho</translation>
  </message>
  <message id="Search_Paths_Placeholder_Label">
    <source></source>
    <translation>Pesquisar por nome ou caminho</translation>
  </message>
  <message id="Search_Sub_Label">
    <source></source>
    <translation>Pesquisar por nome ou caminho neste caminho e em tudo abaixo dele</translation>
  </message>
  <message id="Search_Parent_Label">
    <source></source>
    <translation>Pesquisar por nome ou caminho neste caminho e nas pastas acima dele</translation>
  </message>
  <message id="No_Sub_Trustees_Label">
    <source></source>
    <translation>Nenhum titular neste caminho nem abaixo dele.</translation>
  </message>
  <message id="No_Parent_Trustees_Label">
    <source></source>
    <translation>Nenhum titular neste caminho nem nas pastas acima dele.</translation>
  </message>
  <message id="No_Match_Path_Label">
    <source></source>
    <translation>Nenhum nome ou caminho corresponde a “%1”.</translation>
  </message>
  <message id="FSR_Label_Title">
    <source></source>
    <translation>Todos os caminhos abaixo dos quais um usuário ou grupo é titular:</translation>
  </message>
  <message id="Choose_FSR_Tip_Label">
    <source></source>
    <translation>Escolher o usuário ou grupo cujos caminhos você quer ver</translation>
  </message>
  <message id="Group_Rights">
    <source></source>
    <translation>&amp;Direitos de grupo…</translation>
  </message>
  <message id="Group_Rights_Tip_Label">
    <source></source>
    <translation>Mostrar o que este usuário tem por meio de seus grupos</translation>
  </message>
  <message id="Add_Remove_Path_Label">
    <source></source>
    <translation>Caminhos:</translation>
  </message>
  <message id="Add_Path_Tip_Label">
    <source></source>
    <translation>Escolher arquivos e pastas dos quais este usuário ou grupo se torna titular</translation>
  </message>
  <message id="Remove_Path_Tip_Label">
    <source></source>
    <translation>Remover este usuário ou grupo dos caminhos selecionados</translation>
  </message>
  <message id="FSR_Read_Only_Label">
    <source></source>
    <translation>Escolher um usuário ou grupo requer o direito Supervisor neste caminho.</translation>
  </message>
  <message id="FSR_Nobody_Label">
    <source></source>
    <translation>Escolha um usuário ou grupo para ver seus caminhos.</translation>
  </message>
  <message id="FSR_No_Paths_Label">
    <source></source>
    <translation>Não é titular de nenhum caminho abaixo.</translation>
  </message>
  <message id="Group_Rights_Title">
    <source></source>
    <translation>Direitos por meio de grupos</translation>
  </message>
  <message id="Col_Group">
    <source></source>
    <translation>Grupo</translation>
  </message>
  <message id="No_Group_Rights_Label">
    <source></source>
    <translation>Nenhum grupo deste usuário é titular de um caminho abaixo.</translation>
  </message>
  <message id="Browse_Folder_Title">
    <source></source>
    <translation>Escolher arquivos e pastas</translation>
  </message>
  <message id="Browse_Folder_Root_Label">
    <source></source>
    <translation>Volume montado</translation>
  </message>
  <message id="Volume_Not_Mounted_Label">
    <source></source>
    <translation>O volume %1 não está montado neste computador. Abra-o no gerenciador de arquivos e tente novamente.</translation>
  </message>
  <message id="Warning_Title">
    <source></source>
    <translation>Aviso</translation>
  </message>
  <message id="Error_Title">
    <source></source>
    <translation>Erro</translation>
  </message>
  <message id="View_label">
    <source></source>
    <translation>&amp;Exibir:</translation>
  </message>
  <message id="Node_label">
    <source></source>
    <translation>&amp;Domínio:</translation>
  </message>
  <message id="Node_label_morvane">
    <source></source>
    <translation>&amp;Abaixo de:</translation>
  </message>
  <message id="Users_Title">
    <source></source>
    <translation>Usuários</translation>
  </message>
  <message id="Groups_Title">
    <source></source>
    <translation>Grupos</translation>
  </message>
  <message id="Containers_Title">
    <source></source>
    <translation>Contêineres</translation>
  </message>
  <message id="Fetch_title">
    <source></source>
    <translation>&amp;Obter</translation>
  </message>
  <message id="Fetch_Tip_Label">
    <source></source>
    <translation>Consultar o diretório</translation>
  </message>
  <message id="Select_title">
    <source></source>
    <translation>&amp;Selecionar</translation>
  </message>
  <message id="Cancel_title">
    <source></source>
    <translation>&amp;Cancelar</translation>
  </message>
  <message id="OK_title">
    <source></source>
    <translation>&amp;OK</translation>
  </message>
  <message id="Browse_AD_Title">
    <source></source>
    <translation>Escolher do Active Directory</translation>
  </message>
  <message id="Browse_Morvane_Title">
    <source></source>
    <translation>Escolher da árvore Morvane</translation>
  </message>
  <message id="Browse_List_Label">
    <source></source>
    <translation>Usuários e grupos encontrados</translation>
  </message>
  <message id="Browse_Choose_Label">
    <source></source>
    <translation>Escolher…</translation>
  </message>
  <message id="Browse_AD_Start_Label">
    <source></source>
    <translation>Escolha o que exibir e em qual domínio e clique em “Obter”.</translation>
  </message>
  <message id="Browse_Morvane_Start_Label">
    <source></source>
    <translation>Escolha o que exibir, digite onde procurar (por exemplo .O=kestmoor.T=tree.) e clique em “Obter”.</translation>
  </message>
  <message id="No_Domains_Label">
    <source></source>
    <translation>Este computador não conhece nenhum domínio do Active Directory.</translation>
  </message>
  <message id="Domain_Silent_Label">
    <source></source>
    <translation>%1 não responde. O arquivo de log contém os detalhes.</translation>
  </message>
  <message id="No_Users_In_Label">
    <source></source>
    <translation>Nenhum usuário encontrado em %1.</translation>
  </message>
  <message id="No_Groups_In_Label">
    <source></source>
    <translation>Nenhum grupo encontrado em %1.</translation>
  </message>
  <message id="No_Users_Below_Label">
    <source></source>
    <translation>Nenhum usuário encontrado abaixo de %1</translation>
  </message>
  <message id="No_Groups_Below_Label">
    <source></source>
    <translation>Nenhum grupo encontrado abaixo de %1</translation>
  </message>
  <message id="No_Containers_Below_Label">
    <source></source>
    <translation>Nenhum contêiner encontrado abaixo de %1</translation>
  </message>
  <message id="No_Users_Label">
    <source></source>
    <translation>Nenhum usuário encontrado.</translation>
  </message>
  <message id="No_Groups_Label">
    <source></source>
    <translation>Nenhum grupo encontrado.</translation>
  </message>
  <message id="Identify_Source_Title">
    <source></source>
    <translation>Escolher um diretório</translation>
  </message>
  <message id="Select_source_of_identity_Label">
    <source></source>
    <translation>De qual diretório você quer escolher?</translation>
  </message>
  <message id="Morvane_title">
    <source></source>
    <translation>&amp;Morvane</translation>
  </message>
  <message id="Active_Directory_title">
    <source></source>
    <translation>&amp;Active Directory</translation>
  </message>
  <message id="Add_Trustee_Message_Label">
    <source></source>
    <translation>Quando ativado, as listas mostram os titulares dos dois diretórios e, sempre que você escolher um usuário ou grupo, será perguntado primeiro em qual diretório procurar. A configuração vale até você sair do Quorvan.</translation>
  </message>
  <message id="Settings_Read_Only_Label">
    <source></source>
    <translation>Somente usuários com o direito Supervisor ou Controle de acesso neste caminho podem alterar isto.</translation>
  </message>
  <message id="Log_Details_Label">
    <source></source>
    <translation>Tudo o que o Quorvan pede ao servidor, e cada resposta, é gravado em um arquivo de log nesta pasta. A Ajuda mostra onde ela está neste computador.</translation>
  </message>
  <message id="Err_Msg_Duplicate_Trustee">
    <source></source>
    <translation>Um usuário ou grupo que você escolheu já está na lista e foi mantido como estava.</translation>
  </message>
  <message id="Err_No_Object">
    <source></source>
    <translation>O servidor não conhece este objeto.</translation>
  </message>
  <message id="Err_MI_Create_Failed">
    <source></source>
    <translation>Não foi possível estabelecer a conexão de gerenciamento com o servidor.</translation>
  </message>
  <message id="Err_Fail_SalvagePurge">
    <source></source>
    <translation>Não foi possível recuperar ou purgar os arquivos.</translation>
  </message>
  <message id="Err_Invalid_FileName">
    <source></source>
    <translation>Este nome de arquivo contém caracteres que o servidor não aceita.</translation>
  </message>
  <message id="Err_Duplicate_FileName">
    <source></source>
    <translation>Já existe um arquivo com este nome. Escolha outro nome.</translation>
  </message>
  <message id="Err_Invalid_FilePath">
    <source></source>
    <translation>Este caminho não existe no servidor ou não é válido.</translation>
  </message>
  <message id="Err_Empty_FileName">
    <source></source>
    <translation>Digite um nome de arquivo.</translation>
  </message>
  <message id="Err_NIT_Down">
    <source></source>
    <translation>O serviço de identidade do servidor não responde. Peça ao administrador do servidor que o inicie.</translation>
  </message>
  <message id="Err_No_Privilege">
    <source></source>
    <translation>Você não tem os direitos que esta operação requer.</translation>
  </message>
  <message id="Err_Purge_Warning">
    <source></source>
    <translation>Purgar elimina os arquivos para sempre. Depois disso eles não podem ser recuperados.</translation>
  </message>
  <message id="Err_CancelAll_Warning">
    <source></source>
    <translation>Todas as alterações ainda não aplicadas serão perdidas.</translation>
  </message>
  <message id="Err_Keychain_Not_Found">
    <source></source>
    <translation>A senha do servidor não foi encontrada no chaveiro. Monte o compartilhamento com “Lembrar senha” e abra o Quorvan novamente.</translation>
  </message>
  <message id="Err_Pipe_Open_Failed">
    <source></source>
    <translation>Não foi possível abrir o serviço de gerenciamento do servidor.</translation>
  </message>
  <message id="Err_Operation_Failed">
    <source></source>
    <translation>O servidor não concluiu a operação. Verifique a conexão com o servidor e se o chaveiro contém a senha dele; depois tente novamente. O arquivo de log contém os detalhes.</translation>
  </message>
  <message id="Err_AD_Connect">
    <source></source>
    <translation>Não foi possível acessar o Active Directory. Verifique a conexão de rede e tente novamente.</translation>
  </message>
  <message id="Err_Logged_User_Morvane">
    <source></source>
    <translation>Você está conectado ao servidor como usuário do diretório Morvane, ao qual esta instalação não oferece suporte. O Quorvan será encerrado.</translation>
  </message>
  <message id="Waiting_Label">
    <source></source>
    <translation>Aguardando o servidor: %1 s</translation>
  </message>
  <message id="Group_Rights_Unknown_Label">
    <source></source>
    <translation>Não foi possível ler os direitos dos grupos.</translation>
  </message>
  <message id="Rights_Unknown_Label">
    <source></source>
    <translation>Desconhecido: não foi possível ler os direitos.</translation>
  </message>
  <message id="Pending_Tip_Label">
    <source></source>
    <translation>Mostrar o que aguarda “Aplicar”</translation>
  </message>
  <message id="Pending_Change_Label">
    <source></source>
    <translation>%1: %2</translation>
  </message>
  <message id="Pending_Removed_Label">
    <source></source>
    <translation>%1 será removido</translation>
  </message>
  <message id="Pending_Not_Shown_Label">
    <source></source>
    <translation>%1, não mostrado na lista</translation>
  </message>
  <message id="Pending_No_Rights_Label">
    <source></source>
    <translation>nenhum direito</translation>
  </message>
  <message id="Pending_Added_Row_Label">
    <source></source>
    <translation>%1, novo, aguarda aplicação</translation>
  </message>
  <message id="Pending_Changed_Row_Label">
    <source></source>
    <translation>%1, alterado, aguarda aplicação</translation>
  </message>
  <message id="Applied_Label">
    <source></source>
    <translation>Aplicado às %1</translation>
  </message>
  <message id="Pending_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n alteração pendente</numerusform>
      <numerusform>%n alterações pendentes</numerusform>
    </translation>
  </message>
  <message id="Pending_More_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>e mais %n</numerusform>
      <numerusform>e mais %n</numerusform>
    </translation>
  </message>
  <message id="Not_Applied_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>O servidor não aceitou %1 de %n alteração: %2</numerusform>
      <numerusform>O servidor não aceitou %1 de %n alterações: %2</numerusform>
    </translation>
  </message>
  <message id="Inherited_Filter_Label">
    <source></source>
    <translation>Direitos que passam</translation>
  </message>
  <message id="Attributes_Change_Label">
    <source></source>
    <translation>Atributos</translation>
  </message>
  <message id="Owner_Change_Label">
    <source></source>
    <translation>Proprietário</translation>
  </message>
  <message id="Quota_Change_Label">
    <source></source>
    <translation>Limite da pasta</translation>
  </message>
  <message id="Pending_None_Label">
    <source></source>
    <translation>nenhum</translation>
  </message>
  <message id="Copy_title">
    <source></source>
    <translation>C&amp;opiar</translation>
  </message>
  <message id="Export_title">
    <source></source>
    <translation>E&amp;xportar como CSV…</translation>
  </message>
  <message id="Export_Filter_Label">
    <source></source>
    <translation>Valores separados por vírgulas (*.csv)</translation>
  </message>
  <message id="Exported_Label">
    <source></source>
    <translation>Exportado para %1</translation>
  </message>
  <message id="Not_Exported_Label">
    <source></source>
    <translation>%1 não foi gravado: %2</translation>
  </message>
  <message id="No_Reload_Label">
    <source></source>
    <translation>Não foi lido de novo: há alterações aguardando. Aplique-as ou reverta-as primeiro.</translation>
  </message>
  <message id="Take_Off_title">
    <source></source>
    <translation>&amp;Retirar</translation>
  </message>
  <message id="Take_Off_Tip_Label">
    <source></source>
    <translation>Retirar desta lista os usuários selecionados</translation>
  </message>
  <message id="Current_Limit_Label">
    <source></source>
    <translation>agora %1</translation>
  </message>
  <message id="Current_Limits_Label">
    <source></source>
    <translation>agora de %1 a %2</translation>
  </message>
  <message id="Over_Limit_Row_Label">
    <source></source>
    <translation>%1, acima do limite</translation>
  </message>
  <message id="Over_Limit_Tip_Label">
    <source></source>
    <translation>Mais do que o limite permite</translation>
  </message>
  <message id="Over_Limit_Next_Tip_Label">
    <source></source>
    <translation>Ir para o próximo</translation>
  </message>
  <message id="Over_Limit_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n usuário acima do limite</numerusform>
      <numerusform>%n usuários acima do limite</numerusform>
    </translation>
  </message>
  <message id="Connecting_Label">
    <source></source>
    <translation>Conectando a %1…</translation>
  </message>
  <message id="Connection_Lost_Label">
    <source></source>
    <translation>A conexão com %1 foi perdida.</translation>
  </message>
  <message id="Connection_Lost_Reading_Label">
    <source></source>
    <translation>Nem tudo pôde ser lido.</translation>
  </message>
  <message id="Connection_Lost_Changes_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n alteração pode ou não ter sido feita. “Aplicar” a envia novamente; “Reverter” lê de novo o que há.</numerusform>
      <numerusform>%n alterações podem ou não ter sido feitas. “Aplicar” as envia novamente; “Reverter” lê de novo o que há.</numerusform>
    </translation>
  </message>
  <message id="Supervisor_Explained_Label">
    <source></source>
    <translation>%1: tem todos os direitos aqui e em tudo abaixo, seja o que mais estiver marcado; nenhum filtro o detém.</translation>
  </message>
  <message id="Read_Explained_Label">
    <source></source>
    <translation>%1: abrir arquivos e lê-los.</translation>
  </message>
  <message id="Write_Explained_Label">
    <source></source>
    <translation>%1: abrir arquivos e alterar seu conteúdo.</translation>
  </message>
  <message id="Erase_Explained_Label">
    <source></source>
    <translation>%1: excluir arquivos e pastas.</translation>
  </message>
  <message id="Create_Explained_Label">
    <source></source>
    <translation>%1: criar arquivos e pastas.</translation>
  </message>
  <message id="Modify_Explained_Label">
    <source></source>
    <translation>%1: renomear arquivos e pastas e alterar seus atributos.</translation>
  </message>
  <message id="File_Scan_Explained_Label">
    <source></source>
    <translation>%1: ver arquivos e pastas em listagens.</translation>
  </message>
  <message id="Access_Control_Explained_Label">
    <source></source>
    <translation>%1: alterar quem tem quais direitos aqui e o que é herdado.</translation>
  </message>
  <message id="Row_Explained_Label">
    <source></source>
    <translation>O que uma linha diz substitui o que o mesmo usuário ou grupo tem das pastas acima. Uma linha sem marcas não deixa nada disso.</translation>
  </message>
  <message id="Grant_title">
    <source></source>
    <translation>&amp;Conceder</translation>
  </message>
  <message id="Take_Away_title">
    <source></source>
    <translation>&amp;Retirar</translation>
  </message>
  <message id="Set_Rights_title">
    <source></source>
    <translation>De&amp;finir direitos</translation>
  </message>
  <message id="Preset_Read_title">
    <source></source>
    <translation>&amp;Leitura</translation>
  </message>
  <message id="Preset_Write_title">
    <source></source>
    <translation>Leitura &amp;e gravação</translation>
  </message>
  <message id="Preset_All_title">
    <source></source>
    <translation>&amp;Tudo exceto Supervisor</translation>
  </message>
  <message id="Preset_None_title">
    <source></source>
    <translation>&amp;Nada</translation>
  </message>
  <message id="Show_Log_title">
    <source></source>
    <translation>&amp;Mostrar arquivo de log</translation>
  </message>
  <message id="No_Log_Viewer_Label">
    <source></source>
    <translation>Nenhum programa abriu o arquivo de log: %1</translation>
  </message>
  <message id="Why_Nothing_Waits_Label">
    <source></source>
    <translation>Não há nada para aplicar ou reverter</translation>
  </message>
  <message id="Why_Needs_Rights_Label">
    <source></source>
    <translation>Requer aqui o direito Supervisor ou Controle de acesso</translation>
  </message>
  <message id="Why_Needs_Supervisor_Label">
    <source></source>
    <translation>Requer aqui o direito Supervisor</translation>
  </message>
  <message id="Why_Both_Shown_Label">
    <source></source>
    <translation>Não enquanto os dois diretórios são mostrados juntos</translation>
  </message>
  <message id="Why_Nobody_Chosen_Label">
    <source></source>
    <translation>Escolha primeiro um usuário ou grupo</translation>
  </message>
  <message id="Why_Not_A_User_Label">
    <source></source>
    <translation>Somente usuários têm direitos por meio de grupos</translation>
  </message>
  <message id="Why_Read_Only_File_Label">
    <source></source>
    <translation>O que é somente leitura não pode ser renomeado nem excluído</translation>
  </message>
  <message id="Why_File_Only_Label">
    <source></source>
    <translation>Arquivos são compactados, pastas não</translation>
  </message>
  <message id="Why_Being_Edited_Label">
    <source></source>
    <translation>O limite está sendo editado</translation>
  </message>
  <message id="Why_Nothing_Selected_Label">
    <source></source>
    <translation>Selecione primeiro algo na lista</translation>
  </message>
  <message id="Why_No_Place_Label">
    <source></source>
    <translation>Indique primeiro onde procurar</translation>
  </message>
  <message id="FSR_Not_Allowed_Label">
    <source></source>
    <translation>Ver os caminhos de um usuário ou grupo requer aqui o direito Supervisor.</translation>
  </message>
  <message id="Group_Rights_Of_Label">
    <source></source>
    <translation>O que %1 tem por meio de grupos</translation>
  </message>
  <message id="Salvage_Purge_title">
    <source></source>
    <translation>&amp;Recuperar e purgar: não nesta versão</translation>
  </message>
  <message id="Path_Outside_Label">
    <source></source>
    <translation>Fora de %1 e, portanto, não listados aqui depois de aplicar: %2</translation>
  </message>
  <message id="No_Password_Label">
    <source></source>
    <translation>O chaveiro não contém senha para %1. Monte um compartilhamento desse servidor no gerenciador de arquivos com “Lembrar senha” e tente novamente.</translation>
  </message>
  <message id="Handover_Nothing_Label">
    <source></source>
    <translation>Escolha um arquivo ou pasta de um compartilhamento montado no gerenciador de arquivos e, no menu, “Gerenciar direitos…”.</translation>
  </message>
  <message id="Handover_Several_Label">
    <source></source>
    <translation>O Quorvan trabalha com um arquivo ou pasta de cada vez.</translation>
  </message>
  <message id="Handover_No_Share_Label">
    <source></source>
    <translation>“%1” não está em um compartilhamento SMB montado.</translation>
  </message>
  <message id="Handover_Gone_Label">
    <source></source>
    <translation>“%1” não existe mais.</translation>
  </message>
  <message id="Handover_Unknown_Share_Label">
    <source></source>
    <translation>A tabela de compartilhamentos, shares.conf, não diz abaixo de qual caminho do servidor está “%1”.</translation>
  </message>
  <message id="Handover_Odd_Name_Label">
    <source></source>
    <translation>“%1” tem no caminho um nome que não pode ser repassado.</translation>
  </message>
  <message id="Handover_Not_Written_Label">
    <source></source>
    <translation>Não foi possível repassar a seleção: group.tarnix.common.plist na sua pasta de configurações não pode ser gravado.</translation>
  </message>
  <message id="Handover_Not_Started_Label">
    <source></source>
    <translation>Não foi possível iniciar o programa quorvan.</translation>
  </message>
  <message id="Why_title">
    <source></source>
    <translation>&amp;Por que este usuário ou grupo tem estes direitos…</translation>
  </message>
  <message id="Why_Button_title">
    <source></source>
    <translation>Por &amp;quê…</translation>
  </message>
  <message id="Why_Button_Tip_Label">
    <source></source>
    <translation>Mostrar de onde vêm estes direitos e o que detém outros</translation>
  </message>
  <message id="Why_Window_Title">
    <source></source>
    <translation>Por quê: %1 – %2</translation>
  </message>
  <message id="Why_Served_Label">
    <source></source>
    <translation>O que o servidor concede aqui:</translation>
  </message>
  <message id="Why_Served_More_Label">
    <source></source>
    <translation>O servidor concede %1; o que se vê daqui não explica isso.</translation>
  </message>
  <message id="Why_Served_Less_Label">
    <source></source>
    <translation>Pelo que se vê daqui, %1 deveria ser concedido, mas o servidor não o concede.</translation>
  </message>
  <message id="Why_Right_Label">
    <source></source>
    <translation>Direito</translation>
  </message>
  <message id="Why_Holds_Label">
    <source></source>
    <translation>Tem</translation>
  </message>
  <message id="Why_Reason_Label">
    <source></source>
    <translation>Por quê</translation>
  </message>
  <message id="Why_Way_Label">
    <source></source>
    <translation>O caminho do volume até aqui:</translation>
  </message>
  <message id="Why_Granted_Label">
    <source></source>
    <translation>Concedido aqui</translation>
  </message>
  <message id="Why_Passes_Label">
    <source></source>
    <translation>Passa de cima</translation>
  </message>
  <message id="Why_Passes_All_Label">
    <source></source>
    <translation>tudo</translation>
  </message>
  <message id="Why_Not_Visible_Label">
    <source></source>
    <translation>não visível</translation>
  </message>
  <message id="Why_Yes_Label">
    <source></source>
    <translation>sim</translation>
  </message>
  <message id="Why_No_Label">
    <source></source>
    <translation>não</translation>
  </message>
  <message id="Why_Granted_Self_Label">
    <source></source>
    <translation>Concedido a %1 em %2</translation>
  </message>
  <message id="Why_Granted_Group_Label">
    <source></source>
    <translation>Concedido em %2 a %1, do qual é membro</translation>
  </message>
  <message id="Why_Filtered_Label">
    <source></source>
    <translation>; detido pelo filtro de %1</translation>
  </message>
  <message id="Why_Replaced_Label">
    <source></source>
    <translation>; substituído pela atribuição em %1</translation>
  </message>
  <message id="Why_By_Supervisor_Label">
    <source></source>
    <translation>Incluído em Supervisor</translation>
  </message>
  <message id="Why_Nowhere_Label">
    <source></source>
    <translation>Não concedido em lugar algum</translation>
  </message>
  <message id="Why_Decides_Label">
    <source></source>
    <translation>decide</translation>
  </message>
  <message id="Why_Unknown_Label">
    <source></source>
    <translation>Não foi possível ler isto do servidor.</translation>
  </message>
  <message id="Why_Invisible_Label">
    <source></source>
    <translation>Não foi possível ler %1; o que é concedido ali e acima não é visível.</translation>
  </message>
  <message id="Why_Everyone_Label">
    <source></source>
    <translation>%3 tem estes direitos em %1: %2. O diretório não diz se isso vale aqui.</translation>
  </message>
  <message id="Why_No_Assignment_Label">
    <source></source>
    <translation>Selecione um motivo que indique uma atribuição</translation>
  </message>
  <message id="Why_Go_To_title">
    <source></source>
    <translation>&amp;Mostrar em pastas com titulares</translation>
  </message>
  <message id="Why_Go_To_Tip_Label">
    <source></source>
    <translation>Fechar esta folha e ir para a atribuição, onde ela pode ser alterada</translation>
  </message>
  <message id="Why_Copy_title">
    <source></source>
    <translation>&amp;Copiar como texto</translation>
  </message>
  <message id="Why_Copy_Tip_Label">
    <source></source>
    <translation>Copiar tudo isto, para um chamado ou uma auditoria</translation>
  </message>
  <message id="Help_Contents_title">
    <source></source>
    <translation>&amp;Conteúdo</translation>
  </message>
  <message id="No_Guide_Label">
    <source></source>
    <translation>Não foi possível abrir o guia do usuário: %1</translation>
  </message>
  <message id="List_Refused_Label">
    <source></source>
    <translation>O servidor se recusou a listá-los.</translation>
  </message>
  <message id="List_Unreadable_Label">
    <source></source>
    <translation>Não foi possível ler a resposta do servidor.</translation>
  </message>
  <message id="List_Partly_Refused_Label">
    <source></source>
    <translation>A lista está incompleta: o servidor recusou pelo menos uma parte.</translation>
  </message>
  <message id="List_Partly_Unreadable_Label">
    <source></source>
    <translation>A lista está incompleta: não foi possível ler uma resposta do servidor.</translation>
  </message>
  <message id="Right_Stopped_Label">
    <source></source>
    <translation>%1, barrado pelo filtro de %2</translation>
  </message>
  <message id="Stopped_title">
    <source></source>
    <translation>Marcar direi&amp;tos barrados</translation>
  </message>
  <message id="Stopped_Tip_Label">
    <source></source>
    <translation>Ler os filtros das pastas acima e marcar os direitos que não chegam aqui</translation>
  </message>
  <message id="Stopped_None_Label">
    <source></source>
    <translation>Nenhum filtro no caminho barra estes direitos.</translation>
  </message>
  <message id="Stopped_Unread_Label">
    <source></source>
    <translation>Não foi possível ler; o que o filtro barra não está marcado: %1</translation>
  </message>
  <message id="Why_Export_title">
    <source></source>
    <translation>E&amp;xportar…</translation>
  </message>
  <message id="Why_Export_Filter_Label">
    <source></source>
    <translation>Texto (*.txt)</translation>
  </message>
  <message id="Why_Leave_Pending_Label">
    <source></source>
    <translation>Aplique ou reverta antes as alterações: sair da página as perderia</translation>
  </message>
  <message id="Why_On_Server_Label">
    <source></source>
    <translation>%1 em %2</translation>
  </message>
  <message id="Why_Unstoppable_Label">
    <source></source>
    <translation>; nada o barra</translation>
  </message>
  <message id="Why_On_Way_Label">
    <source></source>
    <translation>no seu caminho</translation>
  </message>
  <message id="Why_Change_Label">
    <source></source>
    <translation>O que mudaria isso:</translation>
  </message>
  <message id="Why_Take_Label">
    <source></source>
    <translation>Retirar %1 de %2 em %3</translation>
  </message>
  <message id="Why_Take_Also_Label">
    <source></source>
    <translation>E retirar %1 de %2 em %3</translation>
  </message>
  <message id="Why_Give_Label">
    <source></source>
    <translation>Conceder %1 a %2 também em %3</translation>
  </message>
  <message id="Why_Let_Through_Label">
    <source></source>
    <translation>Deixar passar %1 no filtro de %2</translation>
  </message>
  <message id="Why_Nothing_Chosen_Label">
    <source></source>
    <translation>Selecione um direito acima.</translation>
  </message>
  <message id="Why_Nothing_There_Label">
    <source></source>
    <translation>Seria preciso concedê-lo aqui ou em uma pasta acima.</translation>
  </message>
  <message id="Why_Named_title">
    <source></source>
    <translation>&amp;Por que %1 tem estes direitos aqui?</translation>
  </message>
  <message id="Stopped_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n direito não chega aqui: está sublinhado, e sua dica nomeia a pasta que o barra</numerusform>
      <numerusform>%n direitos não chegam aqui: estão sublinhados, e suas dicas nomeiam as pastas que os barram</numerusform>
    </translation>
  </message>
  <message id="Sent_In_Doubt_Label">
    <source></source>
    <translation>Enviado, mas o resultado não pôde ser lido: %1</translation>
  </message>
  <message id="Sent_Outside_Label">
    <source></source>
    <translation>Enviado; o resultado não está nesta lista: %1</translation>
  </message>
  <message id="Edit_Nobody_Label">
    <source></source>
    <translation>Nenhum usuário estava selecionado na tabela.
Adicione usuários aqui, ou feche e selecione-os lá.</translation>
  </message>
  <message id="Why_Only_Shown_Label">
    <source></source>
    <translation>Mostrado aqui; não é alterado aqui</translation>
  </message>
  <message id="Attribute_On_Label">
    <source></source>
    <translation>ativado</translation>
  </message>
  <message id="Attribute_Off_Label">
    <source></source>
    <translation>desativado</translation>
  </message>
  <message id="Attributes_As_Before_Label">
    <source></source>
    <translation>como antes</translation>
  </message>
  <message id="Why_One_Only_Label">
    <source></source>
    <translation>Selecione antes uma única linha</translation>
  </message>
  <message id="Quorvan_Help_Label">
    <source></source>
    <translation>Uso: quorvan [--help] [--version]

Mostra e altera os direitos sobre o arquivo ou a pasta escolhida no gerenciador
de arquivos, cujo menu o inicia; sozinho, trabalha com a última seleção.

  -h, --help     mostra este texto e termina
  -v, --version  mostra a versão e termina</translation>
  </message>
  <message id="Handover_Help_Label">
    <source></source>
    <translation>Uso: quorvan-handover PATH|URI

Abre o Quorvan em um arquivo ou uma pasta de um compartilhamento SMB montado: um
caminho local ou um endereço smb://HOST/SHARE/caminho. Os menus dos
gerenciadores de arquivos o chamam.

  -h, --help     mostra este texto e termina
  -v, --version  mostra a versão e termina</translation>
  </message>
</context>
</TS>

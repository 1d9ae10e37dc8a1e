<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
  <name></name>
  <message id="AboutQuorvan_title">
    <source></source>
    <translation>&amp;Acerca de Quorvan</translation>
  </message>
  <message id="Preferences_title">
    <source></source>
    <translation>&amp;Preferencias…</translation>
  </message>
  <message id="Services_title">
    <source></source>
    <translation>Servicios</translation>
  </message>
  <message id="HideQuorvan_title">
    <source></source>
    <translation>Ocultar Quorvan</translation>
  </message>
  <message id="HideOthers_title">
    <source></source>
    <translation>Ocultar otros</translation>
  </message>
  <message id="ShowAll_title">
    <source></source>
    <translation>Mostrar todo</translation>
  </message>
  <message id="QuitQuorvan_title">
    <source></source>
    <translation>&amp;Salir de Quorvan</translation>
  </message>
  <message id="Help_title">
    <source></source>
    <translation>&amp;Ayuda</translation>
  </message>
  <message id="QuorvanHelp_title">
    <source></source>
    <translation>&amp;Ayuda de Quorvan</translation>
  </message>
  <message id="Application_Menu_Label">
    <source></source>
    <translation>&amp;Quorvan</translation>
  </message>
  <message id="About_Description_Label">
    <source></source>
    <translation>Gestión de derechos de archivos y carpetas en volúmenes Kelp.</translation>
  </message>
  <message id="About_Version_Label">
    <source></source>
    <translation>Versión %1</translation>
  </message>
  <message id="About_Licence_Label">
    <source></source>
    <translation>Software libre bajo la Licencia Pública General GNU, versión 3 o posterior.</translation>
  </message>
  <message id="Help_Heading_Label">
    <source></source>
    <translation>Cómo funciona Quorvan</translation>
  </message>
  <message id="Help_Selection_Label">
    <source></source>
    <translation>Quorvan trabaja con el archivo o la carpeta que eligió en el gestor de archivos. Para gestionar otro, elíjalo allí y vuelva a abrir Quorvan desde su menú.</translation>
  </message>
  <message id="Help_Editing_Label">
    <source></source>
    <translation>Marque o desmarque una casilla para conceder o retirar un derecho. No se envía nada al servidor hasta que pulse «Aplicar»; «Revertir» recupera lo que tiene el servidor. Puede cambiar derechos donde usted mismo tenga Supervisor o Control de acceso; en los demás sitios la lista es de solo lectura.</translation>
  </message>
  <message id="Help_Rights_Label">
    <source></source>
    <translation>Las letras sobre las casillas</translation>
  </message>
  <message id="Help_Log_Label">
    <source></source>
    <translation>Lo que Quorvan pide al servidor y lo que este responde se guarda en %1</translation>
  </message>
  <message id="RM_Window_Title">
    <source></source>
    <translation>Gestión de derechos</translation>
  </message>
  <message id="Trustee_Rights_Title">
    <source></source>
    <translation>Derechos de los titulares</translation>
  </message>
  <message id="File_System_Rights_Title">
    <source></source>
    <translation>Derechos del sistema de archivos</translation>
  </message>
  <message id="User_Quota_Title">
    <source></source>
    <translation>Cuotas de usuario</translation>
  </message>
  <message id="Information_Title">
    <source></source>
    <translation>Información</translation>
  </message>
  <message id="Settings_Title">
    <source></source>
    <translation>Ajustes</translation>
  </message>
  <message id="Trustee_Rights_Description_Label">
    <source></source>
    <translation>Quién puede hacer qué aquí: los titulares y sus derechos</translation>
  </message>
  <message id="File_System_Rights_Description_Label">
    <source></source>
    <translation>Todas las rutas inferiores en las que un usuario o grupo tiene derechos</translation>
  </message>
  <message id="User_Quota_Description_Label">
    <source></source>
    <translation>Cuánto espacio puede ocupar cada usuario en el volumen</translation>
  </message>
  <message id="Information_Description_Label">
    <source></source>
    <translation>Atributos, propietario y cuota de la carpeta</translation>
  </message>
  <message id="Settings_Description_Label">
    <source></source>
    <translation>Mostrar los titulares de ambos directorios</translation>
  </message>
  <message id="Managed_Path_Label">
    <source></source>
    <translation>Ruta gestionada</translation>
  </message>
  <message id="Try_Again_title">
    <source></source>
    <translation>&amp;Reintentar</translation>
  </message>
  <message id="Try_Again_Tip_Label">
    <source></source>
    <translation>Preguntar de nuevo al servidor quién ha iniciado sesión</translation>
  </message>
  <message id="Managed_Server_Label">
    <source></source>
    <translation>en %1</translation>
  </message>
  <message id="Rights_Label">
    <source></source>
    <translation>Derechos</translation>
  </message>
  <message id="Inherited_Rights_Label">
    <source></source>
    <translation>Filtro de derechos heredados</translation>
  </message>
  <message id="Effective_Rights_Label">
    <source></source>
    <translation>Derechos efectivos</translation>
  </message>
  <message id="Trustee_Directories_Label">
    <source></source>
    <translation>Carpetas con titulares</translation>
  </message>
  <message id="Rights_Tip_Label">
    <source></source>
    <translation>Los titulares de esta ruta y sus derechos</translation>
  </message>
  <message id="Inherited_Rights_Tip_Label">
    <source></source>
    <translation>Qué derechos deja pasar esta ruta desde las carpetas superiores</translation>
  </message>
  <message id="Effective_Rights_Tip_Label">
    <source></source>
    <translation>Lo que un titular puede hacer realmente aquí</translation>
  </message>
  <message id="Trustee_Directories_Tip_Label">
    <source></source>
    <translation>Los titulares de las carpetas superiores e inferiores</translation>
  </message>
  <message id="Close_title">
    <source></source>
    <translation>&amp;Cerrar</translation>
  </message>
  <message id="Close_Tip_Label">
    <source></source>
    <translation>Volver a la vista general</translation>
  </message>
  <message id="Col_UserGrp_Name">
    <source></source>
    <translation>Usuario o grupo</translation>
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
    <translation>&amp;Revertir</translation>
  </message>
  <message id="Rights_Label_Title">
    <source></source>
    <translation>Los titulares y sus derechos</translation>
  </message>
  <message id="Morvane_Trustee_Label">
    <source></source>
    <translation>&amp;Mostrar también titulares de Morvane</translation>
  </message>
  <message id="AD_Trustee_Label">
    <source></source>
    <translation>Mostrar &amp;también titulares de Active Directory</translation>
  </message>
  <message id="Both_Trustee_Label">
    <source></source>
    <translation>&amp;Mostrar los titulares de ambos directorios</translation>
  </message>
  <message id="Supervisor_Label">
    <source></source>
    <translation>Supervisor</translation>
  </message>
  <message id="Read_Label">
    <source></source>
    <translation>Lectura</translation>
  </message>
  <message id="Write_Label">
    <source></source>
    <translation>Escritura</translation>
  </message>
  <message id="Erase_Label">
    <source></source>
    <translation>Borrado</translation>
  </message>
  <message id="Create_Label">
    <source></source>
    <translation>Creación</translation>
  </message>
  <message id="Modify_Label">
    <source></source>
    <translation>Modificación</translation>
  </message>
  <message id="File_Scan_Label">
    <source></source>
    <translation>Exploración</translation>
  </message>
  <message id="Access_Control_Label">
    <source></source>
    <translation>Control de acceso</translation>
  </message>
  <message id="Right_Ticked_Label">
    <source></source>
    <translation>%1: concedido</translation>
  </message>
  <message id="Right_Unticked_Label">
    <source></source>
    <translation>%1: no concedido</translation>
  </message>
  <message id="Search_Placeholder_Label">
    <source></source>
    <translation>Buscar por nombre</translation>
  </message>
  <message id="Search_Tip_Label">
    <source></source>
    <translation>Escriba una parte del nombre. En una búsqueda del nombre completo, * representa varios caracteres y ? uno solo.</translation>
  </message>
  <message id="No_Trustees_Label">
    <source></source>
    <translation>No hay titulares en esta ruta.</translation>
  </message>
  <message id="No_Match_Label">
    <source></source>
    <translation>Ningún nombre coincide con «%1».</translation>
  </message>
  <message id="Rights_Read_Only_Label">
    <source></source>
    <translation>Puede ver estos derechos, pero no cambiarlos: para ello se requiere aquí el derecho Supervisor o Control de acceso.</translation>
  </message>
  <message id="Add_title">
    <source></source>
    <translation>Aña&amp;dir…</translation>
  </message>
  <message id="Add_Tip_Label">
    <source></source>
    <translation>Elegir usuarios y grupos que pasan a ser titulares de esta ruta</translation>
  </message>
  <message id="Remove_title">
    <source></source>
    <translation>Q&amp;uitar</translation>
  </message>
  <message id="Remove_Tip_Label">
    <source></source>
    <translation>Quitar de esta ruta los titulares seleccionados</translation>
  </message>
  <message id="Revert_Tip_Label">
    <source></source>
    <translation>Descartar todos los cambios aún no aplicados</translation>
  </message>
  <message id="Apply_Tip_Label">
    <source></source>
    <translation>Enviar todos los cambios al servidor</translation>
  </message>
  <message id="Path_Label">
    <source></source>
    <translation>Ruta</translation>
  </message>
  <message id="Owner_Label">
    <source></source>
    <translation>Propietario</translation>
  </message>
  <message id="No_Owner_Label">
    <source></source>
    <translation>Nadie</translation>
  </message>
  <message id="Owner_Gone_Label">
    <source></source>
    <translation>Usuario desconocido (%1)</translation>
  </message>
  <message id="Change_Owner_title">
    <source></source>
    <translation>Ca&amp;mbiar…</translation>
  </message>
  <message id="Change_Owner_Tip_Label">
    <source></source>
    <translation>Elegir el usuario propietario de este archivo o carpeta</translation>
  </message>
  <message id="Information_Read_Only_Label">
    <source></source>
    <translation>Cambiar el propietario o el límite requiere aquí el derecho Supervisor. Si puede cambiar los atributos lo decide el servidor.</translation>
  </message>
  <message id="KELP_Attr_Label">
    <source></source>
    <translation>Atributos &amp;Kelp</translation>
  </message>
  <message id="Read_Only_Label">
    <source></source>
    <translation>&amp;Solo lectura</translation>
  </message>
  <message id="Read_Only_Tip_Label">
    <source></source>
    <translation>El contenido no se puede cambiar; tampoco se puede renombrar ni eliminar</translation>
  </message>
  <message id="Hidden_Label">
    <source></source>
    <translation>&amp;Oculto</translation>
  </message>
  <message id="Hidden_Tip_Label">
    <source></source>
    <translation>No aparece en los listados normales</translation>
  </message>
  <message id="Archive_Label">
    <source></source>
    <translation>Arc&amp;hivo</translation>
  </message>
  <message id="Archive_Tip_Label">
    <source></source>
    <translation>Cambiado desde la última copia de seguridad</translation>
  </message>
  <message id="Purge_Immediately_Label">
    <source></source>
    <translation>Pur&amp;gar inmediatamente</translation>
  </message>
  <message id="Purge_Immediately_Tip_Label">
    <source></source>
    <translation>Se pierde para siempre al eliminarlo; no se puede recuperar</translation>
  </message>
  <message id="Rename_Inhibit_Label">
    <source></source>
    <translation>&amp;Impedir renombrar</translation>
  </message>
  <message id="Rename_Inhibit_Tip_Label">
    <source></source>
    <translation>No se puede renombrar; siempre es así en solo lectura</translation>
  </message>
  <message id="Delete_Inhibit_Label">
    <source></source>
    <translation>Impedir &amp;eliminar</translation>
  </message>
  <message id="Delete_Inhibit_Tip_Label">
    <source></source>
    <translation>No se puede eliminar; siempre es así en solo lectura</translation>
  </message>
  <message id="Immediate_Compression_Label">
    <source></source>
    <translation>Compresión inme&amp;diata</translation>
  </message>
  <message id="Immediate_Compression_Tip_Label">
    <source></source>
    <translation>Se comprime en cuanto el servidor tiene tiempo</translation>
  </message>
  <message id="Dont_Compress_Label">
    <source></source>
    <translation>&amp;No comprimir</translation>
  </message>
  <message id="Dont_Compress_Tip_Label">
    <source></source>
    <translation>Nunca se comprime; solo para archivos</translation>
  </message>
  <message id="Directory_Quota_Label">
    <source></source>
    <translation>Cuo&amp;ta de la carpeta</translation>
  </message>
  <message id="Limit_Label">
    <source></source>
    <translation>Límite</translation>
  </message>
  <message id="Used_Label">
    <source></source>
    <translation>Usado</translation>
  </message>
  <message id="Available_Label">
    <source></source>
    <translation>Disponible</translation>
  </message>
  <message id="Unit_Label">
    <source></source>
    <translation>Unidad del límite</translation>
  </message>
  <message id="Edit_Limit_title">
    <source></source>
    <translation>Editar &amp;límite</translation>
  </message>
  <message id="Edit_Limit_Tip_Label">
    <source></source>
    <translation>Introducir otro límite para esta carpeta</translation>
  </message>
  <message id="Remove_Limit_title">
    <source></source>
    <translation>Q&amp;uitar límite</translation>
  </message>
  <message id="Remove_Limit_Tip_Label">
    <source></source>
    <translation>Dejar que esta carpeta crezca tanto como permita el volumen</translation>
  </message>
  <message id="Quota_Bar_Label">
    <source></source>
    <translation>Parte usada del límite</translation>
  </message>
  <message id="Quota_Usage_Label">
    <source></source>
    <translation>%1 % usado</translation>
  </message>
  <message id="Quota_Exceeded_Label">
    <source></source>
    <translation>Límite superado</translation>
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
    <translation>Recuperar archivos eliminados</translation>
  </message>
  <message id="Purge_Description_Label">
    <source></source>
    <translation>Suprimir archivos eliminados</translation>
  </message>
  <message id="Salvage_Purpose_Label">
    <source></source>
    <translation>Los archivos eliminados bajo esta ruta permanecen en el volumen hasta que se purgan. Hasta entonces se pueden recuperar con sus titulares y atributos.</translation>
  </message>
  <message id="Purge_Purpose_Label">
    <source></source>
    <translation>Los archivos eliminados bajo esta ruta permanecen en el volumen hasta que se purgan. Al purgarlos se libera su espacio; después no se pueden recuperar.</translation>
  </message>
  <message id="Salvage_Purge_Nothing_Sent_Label">
    <source></source>
    <translation>Esta versión aún no hace ninguna de las dos cosas: nada en esta página envía algo al servidor.</translation>
  </message>
  <message id="Deleted_Files_Tip_Label">
    <source></source>
    <translation>Lo que esta versión puede hacer con los archivos eliminados</translation>
  </message>
  <message id="More_Information_title">
    <source></source>
    <translation>&amp;Más información…</translation>
  </message>
  <message id="More_Information_Title">
    <source></source>
    <translation>Más información</translation>
  </message>
  <message id="Salvage_Purge_More_Label">
    <source></source>
    <translation>El servidor conserva un archivo eliminado hasta que se necesita su espacio o alguien lo purga. Recuperarlo lo devuelve a su carpeta; purgarlo lo suprime para siempre. Los archivos con el atributo «Purgar inmediatamente» nunca se conservan.

Quorvan aún no puede recuperar ni purgar archivos y no envía nada al servidor desde aquí. Utilice las herramientas de gestión del propio servidor hasta que una versión posterior pueda hacerlo.</translation>
  </message>
  <message id="Users_with_Quota_Label">
    <source></source>
    <translation>Usuarios con cuota en este volumen</translation>
  </message>
  <message id="User_Name_Label">
    <source></source>
    <translation>Usuario</translation>
  </message>
  <message id="Col_User_Name">
    <source></source>
    <translation>Nombre</translation>
  </message>
  <message id="Quota_Limit_Label">
    <source></source>
    <translation>Límite &amp;para cada uno:</translation>
  </message>
  <message id="No_User_Quotas_Label">
    <source></source>
    <translation>Ningún usuario tiene cuota en este volumen.</translation>
  </message>
  <message id="User_Quotas_Unknown_Label">
    <source></source>
    <translation>No se pudieron leer las cuotas del servidor.</translation>
  </message>
  <message id="User_Quota_Read_Only_Label">
    <source></source>
    <translation>Puede ver estas cuotas, pero no cambiarlas: para ello se requiere aquí el derecho Supervisor.</translation>
  </message>
  <message id="Edit_title">
    <source></source>
    <translation>&amp;Editar…</translation>
  </message>
  <message id="Add_User_Quota_Tip_Label">
    <source></source>
    <translation>Elegir usuarios y limitar su espacio</translation>
  </message>
  <message id="Edit_User_Quota_Tip_Label">
    <source></source>
    <translation>Dar otro límite a los usuarios seleccionados</translation>
  </message>
  <message id="Remove_User_Quota_Tip_Label">
    <source></source>
    <translation>Quitar el límite a los usuarios seleccionados</translation>
  </message>
  <message id="Add_User_Quota_Title">
    <source></source>
    <translation>Añadir cuota de usuario</translation>
  </message>
  <message id="Edit_User_Quota_Title">
    <source></source>
    <translation>Editar cuota de usuario</translation>
  </message>
  <message id="Add_Users_title">
    <source></source>
    <translation>Aña&amp;dir usuarios…</translation>
  </message>
  <message id="Add_Users_Tip_Label">
    <source></source>
    <translation>Elegir más usuarios con este límite</translation>
  </message>
  <message id="No_Users_Chosen_Label">
    <source></source>
    <translation>Aún no se han elegido usuarios.</translation>
  </message>
  <message id="User_Quota_Unlimited">
    <source></source>
    <translation>Ilimitado</translation>
  </message>
  <message id="User_Quota_Not_Set">
    <source></source>
    <translation>Sin definir</translation>
  </message>
  <message id="User_Quota_Maximum">
    <source></source>
    <translation>Tanto como tenga el volumen</translation>
  </message>
  <message id="Invalid_Quota_Limit">
    <source></source>
    <translation>Un límite es un número entero, por ejemplo 5. Elija la unidad en la lista contigua.</translation>
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
    <translation>Un derecho marcado pasa de las carpetas superiores a esta ruta. Desmarque una casilla para detener ese derecho aquí.</translation>
  </message>
  <message id="Inherited_Box_Tip_Label">
    <source></source>
    <translation>Marcado: %1 pasa desde las carpetas superiores. Sin marcar: se detiene aquí.</translation>
  </message>
  <message id="Inherited_Supervisor_Tip_Label">
    <source></source>
    <translation>Ningún filtro detiene el derecho Supervisor.</translation>
  </message>
  <message id="Effective_Label">
    <source></source>
    <translation>Lo que los titulares de esta ruta pueden hacer realmente aquí:</translation>
  </message>
  <message id="Select_Effective_Trustee_Label">
    <source></source>
    <translation>Lo que cualquier otro usuario o grupo puede hacer realmente aquí:</translation>
  </message>
  <message id="User_Group_Label">
    <source></source>
    <translation>Usuario o grupo:</translation>
  </message>
  <message id="Nobody_Chosen_Label">
    <source></source>
    <translation>Aún no se ha elegido a nadie</translation>
  </message>
  <message id="Choose_title">
    <source></source>
    <translation>&amp;Elegir…</translation>
  </message>
  <message id="Choose_Effective_Tip_Label">
    <source></source>
    <translation>Elegir el usuario o grupo cuyos derechos efectivos quiere ver</translation>
  </message>
  <message id="Choose_Needs_Rights_Label">
    <source></source>
    <translation>Elegir un usuario o grupo requiere aquí el derecho Supervisor o Control de acceso</translation>
  </message>
  <message id="Subdirectories_Label">
    <source></source>
    <translation>Titulares en esta ruta y todo su contenido:</translation>
  </message>
  <message id="Parent_dir_Label">
    <source></source>
    <translation>Titulares en esta ruta y las carpetas superiores:</translation>
  </message>
  <message id="Remove_Trustee_Label">
    <source></source>
    <translation>Quitar titulares:</translation>
  </message>
  <message id="Remove_Parent_title">
    <source></source>
    <translation>Qu&amp;itar</translation>
  </message>
  <message id="Col_Path">
    <source></source>
    <translation>Ruta</translation>
  </message>
  <message id="Search_Paths_Placeholder_Label">
    <source></source>
    <translation>Buscar por nombre o ruta</translation>
  </message>
  <message id="Search_Sub_Label">
    <source></source>
    <translation>Buscar por nombre o ruta en esta ruta y todo su contenido</translation>
  </message>
  <message id="Search_Parent_Label">
    <source></source>
    <translation>Buscar por nombre o ruta en esta ruta y las carpetas superiores</translation>
  </message>
  <message id="No_Sub_Trustees_Label">
    <source></source>
    <translation>No hay titulares en esta ruta ni por debajo.</translation>
  </message>
  <message id="No_Parent_Trustees_Label">
    <source></source>
    <translation>No hay titulares en esta ruta ni en las carpetas superiores.</translation>
  </message>
  <message id="No_Match_Path_Label">
    <source></source>
    <translation>Ningún nombre ni ruta coincide con «%1».</translation>
  </message>
  <message id="FSR_Label_Title">
    <source></source>
    <translation>Todas las rutas inferiores de las que un usuario o grupo es titular:</translation>
  </message>
  <message id="Choose_FSR_Tip_Label">
    <source></source>
    <translation>Elegir el usuario o grupo cuyas rutas quiere ver</translation>
  </message>
  <message id="Group_Rights">
    <source></source>
    <translation>Derechos de &amp;grupo…</translation>
  </message>
  <message id="Group_Rights_Tip_Label">
    <source></source>
    <translation>Mostrar lo que este usuario tiene a través de sus grupos</translation>
  </message>
  <message id="Add_Remove_Path_Label">
    <source></source>
    <translation>Rutas:</translation>
  </message>
  <message id="Add_Path_Tip_Label">
    <source></source>
    <translation>Elegir archivos y carpetas de los que este usuario o grupo pasa a ser titular</translation>
  </message>
  <message id="Remove_Path_Tip_Label">
    <source></source>
    <translation>Quitar este usuario o grupo de las rutas seleccionadas</translation>
  </message>
  <message id="FSR_Read_Only_Label">
    <source></source>
    <translation>Elegir un usuario o grupo requiere el derecho Supervisor en esta ruta.</translation>
  </message>
  <message id="FSR_Nobody_Label">
    <source></source>
    <translation>Elija un usuario o grupo para ver sus rutas.</translation>
  </message>
  <message id="FSR_No_Paths_Label">
    <source></source>
    <translation>No es titular de ninguna ruta inferior.</translation>
  </message>
  <message id="Group_Rights_Title">
    <source></source>
    <translation>Derechos a través de grupos</translation>
  </message>
  <message id="Col_Group">
    <source></source>
    <translation>Grupo</translation>
  </message>
  <message id="No_Group_Rights_Label">
    <source></source>
    <translation>Ningún grupo de este usuario es titular de una ruta inferior.</translation>
  </message>
  <message id="Browse_Folder_Title">
    <source></source>
    <translation>Elegir archivos y carpetas</translation>
  </message>
  <message id="Browse_Folder_Root_Label">
    <source></source>
    <translation>Volumen montado</translation>
  </message>
  <message id="Volume_Not_Mounted_Label">
    <source></source>
    <translation>El volumen %1 no está montado en este equipo. Ábralo en el gestor de archivos y vuelva a intentarlo.</translation>
  </message>
  <message id="Warning_Title">
    <source></source>
    <translation>Advertencia</translation>
  </message>
  <message id="Error_Title">
    <source></source>
    <translation>Error</translation>
  </message>
  <message id="View_label">
    <source></source>
    <translation>&amp;Vista:</translation>
  </message>
  <message id="Node_label">
    <source></source>
    <translation>&amp;Dominio:</translation>
  </message>
  <message id="Node_label_morvane">
    <source></source>
    <translation>&amp;Debajo de:</translation>
  </message>
  <message id="Users_Title">
    <source></source>
    <translation>Usuarios</translation>
  </message>
  <message id="Groups_Title">
    <source></source>
    <translation>Grupos</translation>
  </message>
  <message id="Containers_Title">
    <source></source>
    <translation>Contenedores</translation>
  </message>
  <message id="Fetch_title">
    <source></source>
    <translation>&amp;Obtener</translation>
  </message>
  <message id="Fetch_Tip_Label">
    <source></source>
    <translation>Consultar el directorio</translation>
  </message>
  <message id="Select_title">
    <source></source>
    <translation>&amp;Seleccionar</translation>
  </message>
  <message id="Cancel_title">
    <source></source>
    <translation>&amp;Cancelar</translation>
  </message>
  <message id="OK_title">
    <source></source>
    <translation>&amp;Aceptar</translation>
  </message>
  <message id="Browse_AD_Title">
    <source></source>
    <translation>Elegir de Active Directory</translation>
  </message>
  <message id="Browse_Morvane_Title">
    <source></source>
    <translation>Elegir del árbol Morvane</translation>
  </message>
  <message id="Browse_List_Label">
    <source></source>
    <translation>Usuarios y grupos encontrados</translation>
  </message>
  <message id="Browse_Choose_Label">
    <source></source>
    <translation>Elegir…</translation>
  </message>
  <message id="Browse_AD_Start_Label">
    <source></source>
    <translation>Elija qué ver y en qué dominio, y pulse «Obtener».</translation>
  </message>
  <message id="Browse_Morvane_Start_Label">
    <source></source>
    <translation>Elija qué ver, escriba dónde buscar (por ejemplo .O=kestmoor.T=tree.) y pulse «Obtener».</translation>
  </message>
  <message id="No_Domains_Label">
    <source></source>
    <translation>Este equipo no conoce ningún dominio de Active Directory.</translation>
  </message>
  <message id="Domain_Silent_Label">
    <source></source>
    <translation>%1 no responde. El archivo de registro contiene los detalles.</translation>
  </message>
  <message id="No_Users_In_Label">
    <source></source>
    <translation>No se encontraron usuarios en %1.</translation>
  </message>
  <message id="No_Groups_In_Label">
    <source></source>
    <translation>No se encontraron grupos en %1.</translation>
  </message>
  <message id="No_Users_Below_Label">
    <source></source>
    <translation>No se encontraron usuarios debajo de %1</translation>
  </message>
  <message id="No_Groups_Below_Label">
    <source></source>
    <translation>No se encontraron grupos debajo de %1</translation>
  </message>
  <message id="No_Containers_Below_Label">
    <source></source>
    <translation>No se encontraron contenedores debajo de %1</translation>
  </message>
  <message id="No_Users_Label">
    <source></source>
    <translation>No se encontraron usuarios.</translation>
  </message>
  <message id="No_Groups_Label">
    <source></source>
    <translation>No se encontraron grupos.</translation>
  </message>
  <message id="Identify_Source_Title">
    <source></source>
    <translation>Elegir un directorio</translation>
  </message>
  <message id="Select_source_of_identity_Label">
    <source></source>
    <translation>¿De qué directorio quiere elegir?</translation>
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
    <translation>Si está activado, las listas muestran los titulares de ambos directorios y, siempre que elija un usuario o grupo, se le preguntará primero en qué directorio buscar. El ajuste dura hasta que salga de Quorvan.</translation>
  </message>
  <message id="Settings_Read_Only_Label">
    <source></source>
    <translation>Solo los usuarios con el derecho Supervisor o Control de acceso en esta ruta pueden cambiar esto.</translation>
  </message>
  <message id="Log_Details_Label">
    <source></source>
    <translation>Todo lo que Quorvan pide al servidor, y cada respuesta, se escribe en un archivo de registro de esta carpeta. La ayuda indica dónde está en este equipo.</translation>
  </message>
  <message id="Err_Msg_Duplicate_Trustee">
    <source></source>
    <translation>Un usuario o grupo que eligió ya está en la lista y se ha dejado como estaba.</translation>
  </message>
  <message id="Err_No_Object">
    <source></source>
    <translation>El servidor no conoce este objeto.</translation>
  </message>
  <message id="Err_MI_Create_Failed">
    <source></source>
    <translation>No se pudo establecer la conexión de gestión con el servidor.</translation>
  </message>
  <message id="Err_Fail_SalvagePurge">
    <source></source>
    <translation>No se pudieron recuperar o purgar los archivos.</translation>
  </message>
  <message id="Err_Invalid_FileName">
    <source></source>
    <translation>Este nombre de archivo contiene caracteres que el servidor no acepta.</translation>
  </message>
  <message id="Err_Duplicate_FileName">
    <source></source>
    <translation>Ya existe un archivo con este nombre. Elija otro nombre.</translation>
  </message>
  <message id="Err_Invalid_FilePath">
    <source></source>
    <translation>Esta ruta no existe en el servidor o no es válida.</translation>
  </message>
  <message id="Err_Empty_FileName">
    <source></source>
    <translation>Introduzca un nombre de archivo.</translation>
  </message>
  <message id="Err_NIT_Down">
    <source></source>
    <translation>El servicio de identidades del servidor no responde. Pida al administrador del servidor que lo inicie.</translation>
  </message>
  <message id="Err_No_Privilege">
    <source></source>
    <translation>No tiene los derechos que requiere esta operación.</translation>
  </message>
  <message id="Err_Purge_Warning">
    <source></source>
    <translation>Purgar suprime los archivos para siempre. Después no se pueden recuperar.</translation>
  </message>
  <message id="Err_CancelAll_Warning">
    <source></source>
    <translation>Se perderán todos los cambios aún no aplicados.</translation>
  </message>
  <message id="Err_Keychain_Not_Found">
    <source></source>
    <translation>No se encontró la contraseña del servidor en el depósito de claves. Monte el recurso compartido con «Recordar contraseña» y vuelva a abrir Quorvan.</translation>
  </message>
  <message id="Err_Pipe_Open_Failed">
    <source></source>
    <translation>No se pudo abrir el servicio de gestión del servidor.</translation>
  </message>
  <message id="Err_Operation_Failed">
    <source></source>
    <translation>El servidor no completó la operación. Compruebe la conexión con el servidor y que su depósito de claves contiene la contraseña; después inténtelo de nuevo. El archivo de registro contiene los detalles.</translation>
  </message>
  <message id="Err_AD_Connect">
    <source></source>
    <translation>No se puede acceder a Active Directory. Compruebe la conexión de red e inténtelo de nuevo.</translation>
  </message>
  <message id="Err_Logged_User_Morvane">
    <source></source>
    <translation>Ha iniciado sesión en el servidor como usuario del directorio Morvane, que esta instalación no admite. Quorvan se cerrará.</translation>
  </message>
  <message id="Waiting_Label">
    <source></source>
    <translation>Esperando al servidor: %1 s</translation>
  </message>
  <message id="Group_Rights_Unknown_Label">
    <source></source>
    <translation>No se pudieron leer los derechos de los grupos.</translation>
  </message>
  <message id="Rights_Unknown_Label">
    <source></source>
    <translation>Desconocido: no se pudieron leer los derechos.</translation>
  </message>
  <message id="Pending_Tip_Label">
    <source></source>
    <translation>Mostrar lo que está pendiente de aplicar</translation>
  </message>
  <message id="Pending_Change_Label">
    <source></source>
    <translation>%1: %2</translation>
  </message>
  <message id="Pending_Removed_Label">
    <source></source>
    <translation>%1 se quitará</translation>
  </message>
  <message id="Pending_Not_Shown_Label">
    <source></source>
    <translation>%1, no se muestra en la lista</translation>
  </message>
  <message id="Pending_No_Rights_Label">
    <source></source>
    <translation>sin derechos</translation>
  </message>
  <message id="Pending_Added_Row_Label">
    <source></source>
    <translation>%1, nuevo, pendiente de aplicar</translation>
  </message>
  <message id="Pending_Changed_Row_Label">
    <source></source>
    <translation>%1, cambiado, pendiente de aplicar</translation>
  </message>
  <message id="Applied_Label">
    <source></source>
    <translation>Aplicado a las %1</translation>
  </message>
  <message id="Pending_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n cambio pendiente</numerusform>
      <numerusform>%n cambios pendientes</numerusform>
    </translation>
  </message>
  <message id="Pending_More_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>y %n más</numerusform>
      <numerusform>y %n más</numerusform>
    </translation>
  </message>
  <message id="Not_Applied_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>El servidor no aceptó %1 de %n cambio: %2</numerusform>
      <numerusform>El servidor no aceptó %1 de %n cambios: %2</numerusform>
    </translation>
  </message>
  <message id="Inherited_Filter_Label">
    <source></source>
    <translation>Derechos que pasan</translation>
  </message>
  <message id="Attributes_Change_Label">
    <source></source>
    <translation>Atributos</translation>
  </message>
  <message id="Owner_Change_Label">
    <source></source>
    <translation>Propietario</translation>
  </message>
  <message id="Quota_Change_Label">
    <source></source>
    <translation>Límite de la carpeta</translation>
  </message>
  <message id="Pending_None_Label">
    <source></source>
    <translation>ninguno</translation>
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
    <translation>Valores separados por comas (*.csv)</translation>
  </message>
  <message id="Exported_Label">
    <source></source>
    <translation>Exportado a %1</translation>
  </message>
  <message id="Not_Exported_Label">
    <source></source>
    <translation>No se escribió %1: %2</translation>
  </message>
  <message id="No_Reload_Label">
    <source></source>
    <translation>No se ha vuelto a leer: hay cambios pendientes. Aplíquelos o reviértalos primero.</translation>
  </message>
  <message id="Take_Off_title">
    <source></source>
    <translation>&amp;Retirar</translation>
  </message>
  <message id="Take_Off_Tip_Label">
    <source></source>
    <translation>Retirar de esta lista los usuarios seleccionados</translation>
  </message>
  <message id="Current_Limit_Label">
    <source></source>
    <translation>ahora %1</translation>
  </message>
  <message id="Current_Limits_Label">
    <source></source>
    <translation>ahora de %1 a %2</translation>
  </message>
  <message id="Over_Limit_Row_Label">
    <source></source>
    <translation>%1, límite superado</translation>
  </message>
  <message id="Over_Limit_Tip_Label">
    <source></source>
    <translation>Más de lo que permite el límite</translation>
  </message>
  <message id="Over_Limit_Next_Tip_Label">
    <source></source>
    <translation>Ir al siguiente</translation>
  </message>
  <message id="Over_Limit_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n usuario supera el límite</numerusform>
      <numerusform>%n usuarios superan su límite</numerusform>
    </translation>
  </message>
  <message id="Connecting_Label">
    <source></source>
    <translation>Conectando con %1…</translation>
  </message>
  <message id="Connection_Lost_Label">
    <source></source>
    <translation>Se perdió la conexión con %1.</translation>
  </message>
  <message id="Connection_Lost_Reading_Label">
    <source></source>
    <translation>No se pudo leer todo.</translation>
  </message>
  <message id="Connection_Lost_Changes_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n cambio puede haberse hecho o no. «Aplicar» lo envía de nuevo; «Revertir» vuelve a leer lo que hay.</numerusform>
      <numerusform>%n cambios pueden haberse hecho o no. «Aplicar» los envía de nuevo; «Revertir» vuelve a leer lo que hay.</numerusform>
    </translation>
  </message>
  <message id="Supervisor_Explained_Label">
    <source></source>
    <translation>%1: tiene todos los derechos aquí y en todo lo inferior, esté marcado lo que esté; ningún filtro lo detiene.</translation>
  </message>
  <message id="Read_Explained_Label">
    <source></source>
    <translation>%1: abrir archivos y leerlos.</translation>
  </message>
  <message id="Write_Explained_Label">
    <source></source>
    <translation>%1: abrir archivos y cambiar su contenido.</translation>
  </message>
  <message id="Erase_Explained_Label">
    <source></source>
    <translation>%1: eliminar archivos y carpetas.</translation>
  </message>
  <message id="Create_Explained_Label">
    <source></source>
    <translation>%1: crear archivos y carpetas.</translation>
  </message>
  <message id="Modify_Explained_Label">
    <source></source>
    <translation>%1: renombrar archivos y carpetas y cambiar sus atributos.</translation>
  </message>
  <message id="File_Scan_Explained_Label">
    <source></source>
    <translation>%1: ver archivos y carpetas en los listados.</translation>
  </message>
  <message id="Access_Control_Explained_Label">
    <source></source>
    <translation>%1: cambiar quién tiene qué derechos aquí y qué se hereda.</translation>
  </message>
  <message id="Row_Explained_Label">
    <source></source>
    <translation>Lo que dice una fila sustituye a lo que el mismo usuario o grupo tiene de las carpetas superiores. Una fila sin marcas no deja nada de ello.</translation>
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
    <translation>E&amp;stablecer derechos</translation>
  </message>
  <message id="Preset_Read_title">
    <source></source>
    <translation>&amp;Lectura</translation>
  </message>
  <message id="Preset_Write_title">
    <source></source>
    <translation>Lectura &amp;y escritura</translation>
  </message>
  <message id="Preset_All_title">
    <source></source>
    <translation>&amp;Todo salvo Supervisor</translation>
  </message>
  <message id="Preset_None_title">
    <source></source>
    <translation>&amp;Nada</translation>
  </message>
  <message id="Show_Log_title">
    <source></source>
    <translation>&amp;Mostrar archivo de registro</translation>
  </message>
  <message id="No_Log_Viewer_Label">
    <source></source>
    <translation>Ningún programa abrió el archivo de registro: %1</translation>
  </message>
  <message id="Why_Nothing_Waits_Label">
    <source></source>
    <translation>No hay nada que aplicar ni revertir</translation>
  </message>
  <message id="Why_Needs_Rights_Label">
    <source></source>
    <translation>Requiere aquí el derecho Supervisor o Control de acceso</translation>
  </message>
  <message id="Why_Needs_Supervisor_Label">
    <source></source>
    <translation>Requiere aquí el derecho Supervisor</translation>
  </message>
  <message id="Why_Both_Shown_Label">
    <source></source>
    <translation>No mientras se muestran juntos ambos directorios</translation>
  </message>
  <message id="Why_Nobody_Chosen_Label">
    <source></source>
    <translation>Elija primero un usuario o grupo</translation>
  </message>
  <message id="Why_Not_A_User_Label">
    <source></source>
    <translation>Solo los usuarios tienen derechos a través de grupos</translation>
  </message>
  <message id="Why_Read_Only_File_Label">
    <source></source>
    <translation>Lo que es de solo lectura no se puede renombrar ni eliminar</translation>
  </message>
  <message id="Why_File_Only_Label">
    <source></source>
    <translation>Se comprimen archivos, no carpetas</translation>
  </message>
  <message id="Why_Being_Edited_Label">
    <source></source>
    <translation>El límite se está editando</translation>
  </message>
  <message id="Why_Nothing_Selected_Label">
    <source></source>
    <translation>Seleccione primero algo en la lista</translation>
  </message>
  <message id="Why_No_Place_Label">
    <source></source>
    <translation>Indique primero dónde buscar</translation>
  </message>
  <message id="FSR_Not_Allowed_Label">
    <source></source>
    <translation>Ver las rutas de un usuario o grupo requiere aquí el derecho Supervisor.</translation>
  </message>
  <message id="Group_Rights_Of_Label">
    <source></source>
    <translation>Lo que %1 tiene a través de grupos</translation>
  </message>
  <message id="Salvage_Purge_title">
    <source></source>
    <translation>&amp;Recuperar y purgar: no en esta versión</translation>
  </message>
  <message id="Path_Outside_Label">
    <source></source>
    <translation>Fuera de %1, por lo que no aparecerá aquí después de aplicar: %2</translation>
  </message>
  <message id="No_Password_Label">
    <source></source>
    <translation>El depósito de claves no contiene ninguna contraseña para %1. Monte uno de sus recursos compartidos en el gestor de archivos con «Recordar contraseña» y vuelva a intentarlo.</translation>
  </message>
  <message id="Handover_Nothing_Label">
    <source></source>
    <translation>Elija un archivo o carpeta de un recurso compartido montado en el gestor de archivos y, en su menú, «Gestionar derechos…».</translation>
  </message>
  <message id="Handover_Several_Label">
    <source></source>
    <translation>Quorvan trabaja con un solo archivo o carpeta a la vez.</translation>
  </message>
  <message id="Handover_No_Share_Label">
    <source></source>
    <translation>«%1» no está en un recurso compartido SMB montado.</translation>
  </message>
  <message id="Handover_Gone_Label">
    <source></source>
    <translation>«%1» ya no existe.</translation>
  </message>
  <message id="Handover_Unknown_Share_Label">
    <source></source>
    <translation>La tabla de recursos compartidos, shares.conf, no dice bajo qué ruta del servidor está «%1».</translation>
  </message>
  <message id="Handover_Odd_Name_Label">
    <source></source>
    <translation>«%1» tiene en su ruta un nombre que no se puede transmitir.</translation>
  </message>
  <message id="Handover_Not_Written_Label">
    <source></source>
    <translation>No se pudo transmitir la selección: no se puede escribir group.tarnix.common.plist en su carpeta de configuración.</translation>
  </message>
  <message id="Handover_Not_Started_Label">
    <source></source>
    <translation>No se pudo iniciar el programa quorvan.</translation>
  </message>
  <message id="Why_title">
    <source></source>
    <translation>&amp;Por qué tiene estos derechos este usuario o grupo…</translation>
  </message>
  <message id="Why_Button_title">
    <source></source>
    <translation>P&amp;or qué…</translation>
  </message>
  <message id="Why_Button_Tip_Label">
    <source></source>
    <translation>Mostrar de dónde vienen estos derechos y qué detiene otros</translation>
  </message>
  <message id="Why_Window_Title">
    <source></source>
    <translation>Por qué: %1 – %2</translation>
  </message>
  <message id="Why_Served_Label">
    <source></source>
    <translation>Lo que el servidor concede aquí:</translation>
  </message>
  <message id="Why_Served_More_Label">
    <source></source>
    <translation>El servidor concede %1; lo que se ve desde aquí no lo explica.</translation>
  </message>
  <message id="Why_Served_Less_Label">
    <source></source>
    <translation>Por lo que se ve desde aquí debería concederse %1, pero el servidor no lo concede.</translation>
  </message>
  <message id="Why_Right_Label">
    <source></source>
    <translation>Derecho</translation>
  </message>
  <message id="Why_Holds_Label">
    <source></source>
    <translation>Lo tiene</translation>
  </message>
  <message id="Why_Reason_Label">
    <source></source>
    <translation>Por qué</translation>
  </message>
  <message id="Why_Way_Label">
    <source></source>
    <translation>El camino desde el volumen hasta esta ruta:</translation>
  </message>
  <message id="Why_Granted_Label">
    <source></source>
    <translation>Concedido aquí</translation>
  </message>
  <message id="Why_Passes_Label">
    <source></source>
    <translation>Pasa desde arriba</translation>
  </message>
  <message id="Why_Passes_All_Label">
    <source></source>
    <translation>todo</translation>
  </message>
  <message id="Why_Not_Visible_Label">
    <source></source>
    <translation>no visible</translation>
  </message>
  <message id="Why_Yes_Label">
    <source></source>
    <translation>sí</translation>
  </message>
  <message id="Why_No_Label">
    <source></source>
    <translation>no</translation>
  </message>
  <message id="Why_Granted_Self_Label">
    <source></source>
    <translation>Concedido a %1 en %2</translation>
  </message>
  <message id="Why_Granted_Group_Label">
    <source></source>
    <translation>Concedido en %2 a %1, del que es miembro</translation>
  </message>
  <message id="Why_Filtered_Label">
    <source></source>
    <translation>; detenido por el filtro de %1</translation>
  </message>
  <message id="Why_Replaced_Label">
    <source></source>
    <translation>; sustituido por la asignación en %1</translation>
  </message>
  <message id="Why_By_Supervisor_Label">
    <source></source>
    <translation>Incluido en Supervisor</translation>
  </message>
  <message id="Why_Nowhere_Label">
    <source></source>
    <translation>No concedido en ningún sitio</translation>
  </message>
  <message id="Why_Decides_Label">
    <source></source>
    <translation>decide</translation>
  </message>
  <message id="Why_Unknown_Label">
    <source></source>
    <translation>Esto no se pudo leer del servidor.</translation>
  </message>
  <message id="Why_Invisible_Label">
    <source></source>
    <translation>No se pudo leer %1; lo que se concede allí y más arriba no es visible.</translation>
  </message>
  <message id="Why_Everyone_Label">
    <source></source>
    <translation>%3 tiene estos derechos en %1: %2. El directorio no dice si eso vale aquí.</translation>
  </message>
  <message id="Why_No_Assignment_Label">
    <source></source>
    <translation>Seleccione un motivo que nombre una asignación</translation>
  </message>
  <message id="Why_Go_To_title">
    <source></source>
    <translation>&amp;Mostrar en carpetas con titulares</translation>
  </message>
  <message id="Why_Go_To_Tip_Label">
    <source></source>
    <translation>Cerrar esta hoja e ir a la asignación, donde se puede cambiar</translation>
  </message>
  <message id="Why_Copy_title">
    <source></source>
    <translation>Copiar como &amp;texto</translation>
  </message>
  <message id="Why_Copy_Tip_Label">
    <source></source>
    <translation>Copiar todo esto, para una incidencia o una auditoría</translation>
  </message>
  <message id="Help_Contents_title">
    <source></source>
    <translation>&amp;Contenido</translation>
  </message>
  <message id="No_Guide_Label">
    <source></source>
    <translation>No se pudo abrir la guía del usuario: %1</translation>
  </message>
  <message id="List_Refused_Label">
    <source></source>
    <translation>El servidor se negó a enumerarlos.</translation>
  </message>
  <message id="List_Unreadable_Label">
    <source></source>
    <translation>No se pudo leer la respuesta del servidor.</translation>
  </message>
  <message id="List_Partly_Refused_Label">
    <source></source>
    <translation>La lista está incompleta: el servidor denegó al menos una parte.</translation>
  </message>
  <message id="List_Partly_Unreadable_Label">
    <source></source>
    <translation>La lista está incompleta: no se pudo leer una respuesta del servidor.</translation>
  </message>
  <message id="Right_Stopped_Label">
    <source></source>
    <translation>%1, detenido por el filtro de %2</translation>
  </message>
  <message id="Stopped_title">
    <source></source>
    <translation>Marcar derechos de&amp;tenidos</translation>
  </message>
  <message id="Stopped_Tip_Label">
    <source></source>
    <translation>Leer los filtros de las carpetas superiores y marcar los derechos que no llegan aquí</translation>
  </message>
  <message id="Stopped_None_Label">
    <source></source>
    <translation>Ningún filtro del camino detiene estos derechos.</translation>
  </message>
  <message id="Stopped_Unread_Label">
    <source></source>
    <translation>No se pudo leer; lo que detiene su filtro no está marcado: %1</translation>
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
    <translation>Aplique o revierta antes los cambios: al salir de la página se perderían</translation>
  </message>
  <message id="Why_On_Server_Label">
    <source></source>
    <translation>%1 en %2</translation>
  </message>
  <message id="Why_Unstoppable_Label">
    <source></source>
    <translation>; nada lo detiene</translation>
  </message>
  <message id="Why_On_Way_Label">
    <source></source>
    <translation>en su camino</translation>
  </message>
  <message id="Why_Change_Label">
    <source></source>
    <translation>Qué lo cambiaría:</translation>
  </message>
  <message id="Why_Take_Label">
    <source></source>
    <translation>Quitar %1 a %2 en %3</translation>
  </message>
  <message id="Why_Take_Also_Label">
    <source></source>
    <translation>Y quitar %1 a %2 en %3</translation>
  </message>
  <message id="Why_Give_Label">
    <source></source>
    <translation>Conceder %1 a %2 también en %3</translation>
  </message>
  <message id="Why_Let_Through_Label">
    <source></source>
    <translation>Dejar pasar %1 en el filtro de %2</translation>
  </message>
  <message id="Why_Nothing_Chosen_Label">
    <source></source>
    <translation>Seleccione un derecho arriba.</translation>
  </message>
  <message id="Why_Nothing_There_Label">
    <source></source>
    <translation>Habría que concederlo aquí o en una carpeta superior.</translation>
  </message>
  <message id="Why_Named_title">
    <source></source>
    <translation>&amp;Por qué %1 tiene estos derechos aquí</translation>
  </message>
  <message id="Stopped_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n derecho no llega aquí: está subrayado y su ayuda nombra la carpeta que lo detiene</numerusform>
      <numerusform>%n derechos no llegan aquí: están subrayados y sus ayudas nombran las carpetas que los detienen</numerusform>
    </translation>
  </message>
  <message id="Sent_In_Doubt_Label">
    <source></source>
    <translation>Enviado, pero no se pudo leer el resultado: %1</translation>
  </message>
  <message id="Sent_Outside_Label">
    <source></source>
    <translation>Enviado; el resultado no está en esta lista: %1</translation>
  </message>
  <message id="Edit_Nobody_Label">
    <source></source>
    <translation>No había ningún usuario seleccionado en la tabla.
Añada usuarios aquí, o cierre y selecciónelos allí.</translation>
  </message>
  <message id="Why_Only_Shown_Label">
    <source></source>
    <translation>Se muestra aquí; no se cambia aquí</translation>
  </message>
  <message id="Attribute_On_Label">
    <source></source>
    <translation>activado</translation>
  </message>
  <message id="Attribute_Off_Label">
    <source></source>
    <translation>desactivado</translation>
  </message>
  <message id="Attributes_As_Before_Label">
    <source></source>
    <translation>como antes</translation>
  </message>
  <message id="Why_One_Only_Label">
    <source></source>
    <translation>Seleccione antes una sola fila</translation>
  </message>
  <message id="Quorvan_Help_Label">
    <source></source>
    <translation>Uso: quorvan [--help] [--version]

Muestra y cambia los derechos sobre el archivo o la carpeta que se eligió en el
gestor de archivos, cuyo menú lo inicia; por sí solo trabaja con la última
selección.

  -h, --help     muestra este texto y termina
  -v, --version  muestra la versión y termina</translation>
  </message>
  <message id="Handover_Help_Label">
    <source></source>
    <translation>Uso: quorvan-handover PATH|URI

Abre Quorvan sobre un archivo o una carpeta de un recurso SMB montado: una ruta
local o una dirección smb://HOST/SHARE/ruta. Lo llaman los menús de los
gestores de archivos.

  -h, --help     muestra este texto y termina
  -v, --version  muestra la versión y termina</translation>
  </message>
</context>
</TS>

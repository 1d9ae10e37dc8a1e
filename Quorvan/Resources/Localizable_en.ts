<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
  <name></name>
  <!-- Application menu -->
  <message id="AboutQuorvan_title">
    <source></source>
    <extracomment>In the application menu.</extracomment>
    <translation>&amp;About Quorvan</translation>
  </message>
  <message id="Preferences_title">
    <source></source>
    <extracomment>In the application menu.</extracomment>
    <translation>&amp;Preferences…</translation>
  </message>
  <message id="Services_title">
    <source></source>
    <extracomment>In the application menu, as some desktops have it.</extracomment>
    <translation>Services</translation>
  </message>
  <message id="HideQuorvan_title">
    <source></source>
    <extracomment>In the application menu.</extracomment>
    <translation>Hide Quorvan</translation>
  </message>
  <message id="HideOthers_title">
    <source></source>
    <extracomment>In the application menu: the windows of the other programs.</extracomment>
    <translation>Hide Others</translation>
  </message>
  <message id="ShowAll_title">
    <source></source>
    <extracomment>In the application menu: all windows.</extracomment>
    <translation>Show All</translation>
  </message>
  <message id="QuitQuorvan_title">
    <source></source>
    <extracomment>In the application menu.</extracomment>
    <translation>&amp;Quit Quorvan</translation>
  </message>
  <message id="Help_title">
    <source></source>
    <extracomment>The menu.</extracomment>
    <translation>&amp;Help</translation>
  </message>
  <message id="QuorvanHelp_title">
    <source></source>
    <extracomment>In the Help menu.</extracomment>
    <translation>Quorvan &amp;Help</translation>
  </message>
  <message id="Application_Menu_Label">
    <source></source>
    <extracomment>The menu that bears the name of the program.</extracomment>
    <translation>&amp;Quorvan</translation>
  </message>
  <message id="About_Description_Label">
    <source></source>
    <translation>Rights management for files and folders on Kelp volumes.</translation>
  </message>
  <message id="About_Version_Label">
    <source></source>
    <extracomment>%1 is a number such as 0.1.0.</extracomment>
    <translation>Version %1</translation>
  </message>
  <message id="About_Licence_Label">
    <source></source>
    <translation>Free software under the GNU General Public License, version 3 or later.</translation>
  </message>
  <message id="Help_Heading_Label">
    <source></source>
    <translation>How Quorvan works</translation>
  </message>
  <message id="Help_Selection_Label">
    <source></source>
    <translation>Quorvan works on the file or folder that you chose in the file manager. To manage another one, choose it there and open Quorvan from its menu again.</translation>
  </message>
  <message id="Help_Editing_Label">
    <source></source>
    <translation>Tick or clear a box to grant or take away a right. Nothing reaches the server until you press Apply; Revert brings back what the server has. You can change rights where you hold Supervisor or Access Control yourself; everywhere else the list is for reading.</translation>
  </message>
  <message id="Help_Rights_Label">
    <source></source>
    <translation>The letters above the boxes</translation>
  </message>
  <message id="Help_Log_Label">
    <source></source>
    <extracomment>In the help; %1 is the path of the log file.</extracomment>
    <translation>What Quorvan asks the server, and what the server answers, is kept in %1</translation>
  </message>
  <!-- Main window and options page -->
  <message id="RM_Window_Title">
    <source></source>
    <translation>Rights Management</translation>
  </message>
  <message id="Trustee_Rights_Title">
    <source></source>
    <extracomment>A page: who holds which rights on the chosen path.</extracomment>
    <translation>Trustee Rights</translation>
  </message>
  <message id="File_System_Rights_Title">
    <source></source>
    <translation>File System Rights</translation>
  </message>
  <message id="User_Quota_Title">
    <source></source>
    <extracomment>A page: how much each user may store.</extracomment>
    <translation>User Quota</translation>
  </message>
  <message id="Information_Title">
    <source></source>
    <extracomment>A page: attributes, owner and limit of the chosen path.</extracomment>
    <translation>Information</translation>
  </message>
  <message id="Settings_Title">
    <source></source>
    <extracomment>A page.</extracomment>
    <translation>Settings</translation>
  </message>
  <message id="Trustee_Rights_Description_Label">
    <source></source>
    <translation>Who may do what here: trustees and their rights</translation>
  </message>
  <message id="File_System_Rights_Description_Label">
    <source></source>
    <translation>Every path below on which one user or group holds rights</translation>
  </message>
  <message id="User_Quota_Description_Label">
    <source></source>
    <translation>How much space each user may fill on the volume</translation>
  </message>
  <message id="Information_Description_Label">
    <source></source>
    <translation>Attributes, owner and directory quota</translation>
  </message>
  <message id="Settings_Description_Label">
    <source></source>
    <translation>Show the trustees of both directories</translation>
  </message>
  <message id="Managed_Path_Label">
    <source></source>
    <translation>Path being managed</translation>
  </message>
  <message id="Try_Again_title">
    <source></source>
    <extracomment>A button: asks the server once more.</extracomment>
    <translation>&amp;Try Again</translation>
  </message>
  <message id="Try_Again_Tip_Label">
    <source></source>
    <translation>Ask the server once more who is logged in</translation>
  </message>
  <message id="Managed_Server_Label">
    <source></source>
    <extracomment>Below the path that is managed; %1 is the name of a server.</extracomment>
    <translation>on %1</translation>
  </message>
  <!-- Trustee rights window -->
  <message id="Rights_Label">
    <source></source>
    <extracomment>A tab, beside those of the filter and of the effective rights.</extracomment>
    <translation>Rights</translation>
  </message>
  <message id="Inherited_Rights_Label">
    <source></source>
    <translation>Inherited Rights Filter</translation>
  </message>
  <message id="Effective_Rights_Label">
    <source></source>
    <translation>Effective Rights</translation>
  </message>
  <message id="Trustee_Directories_Label">
    <source></source>
    <translation>Trustee Directories</translation>
  </message>
  <message id="Rights_Tip_Label">
    <source></source>
    <translation>The trustees of this path and their rights</translation>
  </message>
  <message id="Inherited_Rights_Tip_Label">
    <source></source>
    <translation>Which rights this path lets through from the folders above</translation>
  </message>
  <message id="Effective_Rights_Tip_Label">
    <source></source>
    <translation>What a trustee may really do here</translation>
  </message>
  <message id="Trustee_Directories_Tip_Label">
    <source></source>
    <translation>The trustees of the folders above and below</translation>
  </message>
  <message id="Close_title">
    <source></source>
    <extracomment>A button: leaves the page.</extracomment>
    <translation>&amp;Close</translation>
  </message>
  <message id="Close_Tip_Label">
    <source></source>
    <translation>Back to the overview</translation>
  </message>
  <!-- Trustee table -->
  <message id="Col_UserGrp_Name">
    <source></source>
    <extracomment>The header of a column.</extracomment>
    <translation>User or Group</translation>
  </message>
  <message id="Add_Remove_Label">
    <source></source>
    <translation>Add or remove trustees:</translation>
  </message>
  <message id="Apply_title">
    <source></source>
    <extracomment>A button: sends the changes.</extracomment>
    <translation>&amp;Apply</translation>
  </message>
  <message id="Revert_title">
    <source></source>
    <extracomment>A button: drops the changes.</extracomment>
    <translation>&amp;Revert</translation>
  </message>
  <message id="Rights_Label_Title">
    <source></source>
    <translation>Trustees and their rights</translation>
  </message>
  <message id="Morvane_Trustee_Label">
    <source></source>
    <translation>Show M&amp;orvane trustees too</translation>
  </message>
  <message id="AD_Trustee_Label">
    <source></source>
    <translation>Show Active &amp;Directory trustees too</translation>
  </message>
  <message id="Both_Trustee_Label">
    <source></source>
    <translation>Show trustees of &amp;both directories</translation>
  </message>
  <message id="Supervisor_Label">
    <source></source>
    <extracomment>A right that includes all others; see the glossary.</extracomment>
    <translation>Supervisor</translation>
  </message>
  <message id="Read_Label">
    <source></source>
    <extracomment>A right: to open and read files.</extracomment>
    <translation>Read</translation>
  </message>
  <message id="Write_Label">
    <source></source>
    <extracomment>A right: to change the content of files.</extracomment>
    <translation>Write</translation>
  </message>
  <message id="Erase_Label">
    <source></source>
    <extracomment>A right: to delete files and folders.</extracomment>
    <translation>Erase</translation>
  </message>
  <message id="Create_Label">
    <source></source>
    <extracomment>A right: to make files and folders.</extracomment>
    <translation>Create</translation>
  </message>
  <message id="Modify_Label">
    <source></source>
    <extracomment>A right: to rename, and to change attributes.</extracomment>
    <translation>Modify</translation>
  </message>
  <message id="File_Scan_Label">
    <source></source>
    <extracomment>A right: to see names in a folder.</extracomment>
    <translation>File Scan</translation>
  </message>
  <message id="Access_Control_Label">
    <source></source>
    <extracomment>A right: to change trustees and the filter.</extracomment>
    <translation>Access Control</translation>
  </message>
  <message id="Right_Ticked_Label">
    <source></source>
    <extracomment>For a screen reader; %1 is the name of a right.</extracomment>
    <translation>%1: granted</translation>
  </message>
  <message id="Right_Unticked_Label">
    <source></source>
    <extracomment>For a screen reader; %1 is the name of a right.</extracomment>
    <translation>%1: not granted</translation>
  </message>
  <message id="Search_Placeholder_Label">
    <source></source>
    <extracomment>In an empty search field.</extracomment>
    <translation>Search by name</translation>
  </message>
  <message id="Search_Tip_Label">
    <source></source>
    <translation>Type a part of the name. In a search for the whole name, * stands for any characters and ? for one.</translation>
  </message>
  <message id="No_Trustees_Label">
    <source></source>
    <translation>No trustees on this path.</translation>
  </message>
  <message id="No_Match_Label">
    <source></source>
    <extracomment>In an empty list; %1 is what was typed.</extracomment>
    <translation>No name matches “%1”.</translation>
  </message>
  <message id="Rights_Read_Only_Label">
    <source></source>
    <translation>You can look at these rights but not change them: that takes the Supervisor or Access Control right here.</translation>
  </message>
  <message id="Add_title">
    <source></source>
    <extracomment>A button: chooses identities or folders for the list.</extracomment>
    <translation>A&amp;dd…</translation>
  </message>
  <message id="Add_Tip_Label">
    <source></source>
    <translation>Choose users and groups that become trustees of this path</translation>
  </message>
  <message id="Remove_title">
    <source></source>
    <extracomment>A button: takes the selected rows off the list.</extracomment>
    <translation>Re&amp;move</translation>
  </message>
  <message id="Remove_Tip_Label">
    <source></source>
    <translation>Take the selected trustees off this path</translation>
  </message>
  <message id="Revert_Tip_Label">
    <source></source>
    <translation>Drop all changes that were not applied yet</translation>
  </message>
  <message id="Apply_Tip_Label">
    <source></source>
    <translation>Send all changes to the server</translation>
  </message>
  <!-- Information -->
  <message id="Path_Label">
    <source></source>
    <extracomment>Of the path on the server.</extracomment>
    <translation>Path</translation>
  </message>
  <message id="Owner_Label">
    <source></source>
    <extracomment>Of the owner of a file or folder.</extracomment>
    <translation>Owner</translation>
  </message>
  <message id="No_Owner_Label">
    <source></source>
    <extracomment>In the place of an owner’s name.</extracomment>
    <translation>Nobody</translation>
  </message>
  <message id="Owner_Gone_Label">
    <source></source>
    <extracomment>In the place of an owner’s name; %1 is the identifier that is left of it.</extracomment>
    <translation>Unknown user (%1)</translation>
  </message>
  <message id="Change_Owner_title">
    <source></source>
    <extracomment>A button: chooses another owner.</extracomment>
    <translation>Chan&amp;ge…</translation>
  </message>
  <message id="Change_Owner_Tip_Label">
    <source></source>
    <translation>Choose the user who owns this file or folder</translation>
  </message>
  <message id="Information_Read_Only_Label">
    <source></source>
    <translation>Changing the owner or the limit takes the Supervisor right here. Whether you may change attributes is for the server to say.</translation>
  </message>
  <message id="KELP_Attr_Label">
    <source></source>
    <translation>&amp;Kelp Attributes</translation>
  </message>
  <message id="Read_Only_Label">
    <source></source>
    <extracomment>An attribute of a file or folder.</extracomment>
    <translation>Read &amp;Only</translation>
  </message>
  <message id="Read_Only_Tip_Label">
    <source></source>
    <translation>The contents cannot be changed; nor can it be renamed or deleted</translation>
  </message>
  <message id="Hidden_Label">
    <source></source>
    <extracomment>An attribute of a file or folder.</extracomment>
    <translation>Hi&amp;dden</translation>
  </message>
  <message id="Hidden_Tip_Label">
    <source></source>
    <translation>Left out of ordinary listings</translation>
  </message>
  <message id="Archive_Label">
    <source></source>
    <extracomment>An attribute of a file or folder: has changed since the last backup.</extracomment>
    <translation>Archi&amp;ve</translation>
  </message>
  <message id="Archive_Tip_Label">
    <source></source>
    <translation>Changed since the last backup</translation>
  </message>
  <message id="Purge_Immediately_Label">
    <source></source>
    <translation>&amp;Purge Immediately</translation>
  </message>
  <message id="Purge_Immediately_Tip_Label">
    <source></source>
    <translation>Gone for good once deleted; it cannot be salvaged</translation>
  </message>
  <message id="Rename_Inhibit_Label">
    <source></source>
    <translation>Re&amp;name Inhibit</translation>
  </message>
  <message id="Rename_Inhibit_Tip_Label">
    <source></source>
    <translation>Cannot be renamed; always so while it is read only</translation>
  </message>
  <message id="Delete_Inhibit_Label">
    <source></source>
    <translation>De&amp;lete Inhibit</translation>
  </message>
  <message id="Delete_Inhibit_Tip_Label">
    <source></source>
    <translation>Cannot be deleted; always so while it is read only</translation>
  </message>
  <message id="Immediate_Compression_Label">
    <source></source>
    <translation>&amp;Immediate Compression</translation>
  </message>
  <message id="Immediate_Compression_Tip_Label">
    <source></source>
    <translation>Compressed as soon as the server has time for it</translation>
  </message>
  <message id="Dont_Compress_Label">
    <source></source>
    <translation>Don’&amp;t Compress</translation>
  </message>
  <message id="Dont_Compress_Tip_Label">
    <source></source>
    <translation>Never compressed; for files only</translation>
  </message>
  <message id="Directory_Quota_Label">
    <source></source>
    <translation>Directory Q&amp;uota</translation>
  </message>
  <message id="Limit_Label">
    <source></source>
    <extracomment>Of the amount that may be stored; also the header of a column.</extracomment>
    <translation>Limit</translation>
  </message>
  <message id="Used_Label">
    <source></source>
    <extracomment>Of the amount that is stored; also the header of a column.</extracomment>
    <translation>Used</translation>
  </message>
  <message id="Available_Label">
    <source></source>
    <extracomment>Of the amount that is left; also the header of a column.</extracomment>
    <translation>Available</translation>
  </message>
  <message id="Unit_Label">
    <source></source>
    <translation>Unit of the limit</translation>
  </message>
  <message id="Edit_Limit_title">
    <source></source>
    <extracomment>A button.</extracomment>
    <translation>&amp;Edit Limit</translation>
  </message>
  <message id="Edit_Limit_Tip_Label">
    <source></source>
    <translation>Enter another limit for this folder</translation>
  </message>
  <message id="Remove_Limit_title">
    <source></source>
    <extracomment>A button.</extracomment>
    <translation>Re&amp;move Limit</translation>
  </message>
  <message id="Remove_Limit_Tip_Label">
    <source></source>
    <translation>Let this folder grow as far as the volume allows</translation>
  </message>
  <message id="Quota_Bar_Label">
    <source></source>
    <translation>Share of the limit in use</translation>
  </message>
  <message id="Quota_Usage_Label">
    <source></source>
    <extracomment>On a bar; %1 is a number.</extracomment>
    <translation>%1 % used</translation>
  </message>
  <message id="Quota_Exceeded_Label">
    <source></source>
    <extracomment>On a bar.</extracomment>
    <translation>Over the limit</translation>
  </message>
  <!-- Salvage and purge -->
  <message id="Salvage_Title">
    <source></source>
    <extracomment>A page: brings deleted files back.</extracomment>
    <translation>Salvage</translation>
  </message>
  <message id="Purge_Title">
    <source></source>
    <extracomment>A page: removes deleted files for good.</extracomment>
    <translation>Purge</translation>
  </message>
  <message id="Salvage_Description_Label">
    <source></source>
    <translation>Bring deleted files back</translation>
  </message>
  <message id="Purge_Description_Label">
    <source></source>
    <translation>Remove deleted files</translation>
  </message>
  <message id="Salvage_Purpose_Label">
    <source></source>
    <translation>Files that were deleted below this path stay on the volume until they are purged. Until then they can be salvaged: brought back with their trustees and attributes.</translation>
  </message>
  <message id="Purge_Purpose_Label">
    <source></source>
    <translation>Files that were deleted below this path stay on the volume until they are purged. Purging frees their space; they cannot be salvaged afterwards.</translation>
  </message>
  <message id="Salvage_Purge_Nothing_Sent_Label">
    <source></source>
    <translation>This version does neither yet: nothing on this page sends anything to the server.</translation>
  </message>
  <message id="Deleted_Files_Tip_Label">
    <source></source>
    <translation>What this version can do with deleted files</translation>
  </message>
  <message id="More_Information_title">
    <source></source>
    <translation>&amp;More Information…</translation>
  </message>
  <message id="More_Information_Title">
    <source></source>
    <translation>More Information</translation>
  </message>
  <message id="Salvage_Purge_More_Label">
    <source></source>
    <translation>A deleted file is kept by the server until its space is needed or somebody purges it. Salvaging brings it back into its folder; purging removes it for good. Files with the attribute Purge Immediately are never kept.

Quorvan cannot salvage or purge files yet and sends nothing to the server here. Use the server’s own management tools until a later version can.</translation>
  </message>
  <!-- Quotas -->
  <message id="Users_with_Quota_Label">
    <source></source>
    <translation>Users with a quota on this volume</translation>
  </message>
  <message id="User_Name_Label">
    <source></source>
    <extracomment>The header of a column.</extracomment>
    <translation>User</translation>
  </message>
  <message id="Col_User_Name">
    <source></source>
    <extracomment>The header of a column.</extracomment>
    <translation>Name</translation>
  </message>
  <message id="Quota_Limit_Label">
    <source></source>
    <translation>&amp;Limit for each of them:</translation>
  </message>
  <message id="No_User_Quotas_Label">
    <source></source>
    <translation>No user has a quota on this volume.</translation>
  </message>
  <message id="User_Quotas_Unknown_Label">
    <source></source>
    <translation>The quotas could not be read from the server.</translation>
  </message>
  <message id="User_Quota_Read_Only_Label">
    <source></source>
    <translation>You can look at these quotas but not change them: that takes the Supervisor right here.</translation>
  </message>
  <message id="Edit_title">
    <source></source>
    <extracomment>A button: another limit for the selected users.</extracomment>
    <translation>&amp;Edit…</translation>
  </message>
  <message id="Add_User_Quota_Tip_Label">
    <source></source>
    <translation>Choose users and limit their space</translation>
  </message>
  <message id="Edit_User_Quota_Tip_Label">
    <source></source>
    <translation>Give the selected users another limit</translation>
  </message>
  <message id="Remove_User_Quota_Tip_Label">
    <source></source>
    <translation>Take the limit off the selected users</translation>
  </message>
  <message id="Add_User_Quota_Title">
    <source></source>
    <extracomment>The title of a dialog.</extracomment>
    <translation>Add User Quota</translation>
  </message>
  <message id="Edit_User_Quota_Title">
    <source></source>
    <translation>Edit User Quota</translation>
  </message>
  <message id="Add_Users_title">
    <source></source>
    <extracomment>A button: chooses users.</extracomment>
    <translation>&amp;Add Users…</translation>
  </message>
  <message id="Add_Users_Tip_Label">
    <source></source>
    <translation>Choose more users who get this limit</translation>
  </message>
  <message id="No_Users_Chosen_Label">
    <source></source>
    <translation>No users chosen yet.</translation>
  </message>
  <message id="User_Quota_Unlimited">
    <source></source>
    <extracomment>In the place of an amount.</extracomment>
    <translation>Unlimited</translation>
  </message>
  <message id="User_Quota_Not_Set">
    <source></source>
    <extracomment>In the place of an amount: nobody has set a limit.</extracomment>
    <translation>Not set</translation>
  </message>
  <message id="User_Quota_Maximum">
    <source></source>
    <translation>As much as the volume has</translation>
  </message>
  <message id="Invalid_Quota_Limit">
    <source></source>
    <translation>A limit is a whole number, such as 5. Choose its unit from the list beside it.</translation>
  </message>
  <message id="B">
    <source></source>
    <extracomment>Bytes, behind a number.</extracomment>
    <translation>B</translation>
  </message>
  <message id="KB">
    <source></source>
    <extracomment>1,024 bytes, behind a number.</extracomment>
    <translation>KB</translation>
  </message>
  <message id="MB">
    <source></source>
    <extracomment>1,024 KB, behind a number.</extracomment>
    <translation>MB</translation>
  </message>
  <message id="GB">
    <source></source>
    <extracomment>1,024 MB, behind a number.</extracomment>
    <translation>GB</translation>
  </message>
  <message id="TB">
    <source></source>
    <extracomment>1,024 GB, behind a number.</extracomment>
    <translation>TB</translation>
  </message>
  <message id="PB">
    <source></source>
    <extracomment>1,024 TB, behind a number.</extracomment>
    <translation>PB</translation>
  </message>
  <!-- The inherited rights filter -->
  <message id="Inherited_Deselect_Label">
    <source></source>
    <translation>A ticked right passes from the folders above down to this path. Clear a box to stop that right here.</translation>
  </message>
  <message id="Inherited_Box_Tip_Label">
    <source></source>
    <extracomment>Of a box of the filter; %1 is the name of a right.</extracomment>
    <translation>Ticked: %1 passes from the folders above. Cleared: it stops here.</translation>
  </message>
  <message id="Inherited_Supervisor_Tip_Label">
    <source></source>
    <translation>No filter stops the Supervisor right.</translation>
  </message>
  <!-- Effective rights -->
  <message id="Effective_Label">
    <source></source>
    <translation>What the trustees of this path may really do here:</translation>
  </message>
  <message id="Select_Effective_Trustee_Label">
    <source></source>
    <translation>What any other user or group may really do here:</translation>
  </message>
  <message id="User_Group_Label">
    <source></source>
    <extracomment>In front of a chosen name.</extracomment>
    <translation>User or group:</translation>
  </message>
  <message id="Nobody_Chosen_Label">
    <source></source>
    <translation>Nobody chosen yet</translation>
  </message>
  <message id="Choose_title">
    <source></source>
    <extracomment>A button: chooses a user or a group.</extracomment>
    <translation>Ch&amp;oose…</translation>
  </message>
  <message id="Choose_Effective_Tip_Label">
    <source></source>
    <translation>Choose the user or group whose effective rights you want to see</translation>
  </message>
  <message id="Choose_Needs_Rights_Label">
    <source></source>
    <translation>Choosing a user or group takes the Supervisor or Access Control right here</translation>
  </message>
  <!-- Trustees of folders -->
  <message id="Subdirectories_Label">
    <source></source>
    <translation>Trustees on this path and everything below it:</translation>
  </message>
  <message id="Parent_dir_Label">
    <source></source>
    <translation>Trustees on this path and the folders above it:</translation>
  </message>
  <message id="Remove_Trustee_Label">
    <source></source>
    <translation>Remove trustees:</translation>
  </message>
  <message id="Remove_Parent_title">
    <source></source>
    <extracomment>A button like Remove_title, on the same page, with another mnemonic.</extracomment>
    <translation>Rem&amp;ove</translation>
  </message>
  <message id="Col_Path">
    <source></source>
    <extracomment>The header of a column: a path on the server.</extracomment>
    <translation>Path</translation>
  </message>
  <message id="Search_Paths_Placeholder_Label">
    <source></source>
    <translation>Search by name or path</translation>
  </message>
  <message id="Search_Sub_Label">
    <source></source>
    <translation>Search this path and everything below it by name or path</translation>
  </message>
  <message id="Search_Parent_Label">
    <source></source>
    <translation>Search this path and the folders above it by name or path</translation>
  </message>
  <message id="No_Sub_Trustees_Label">
    <source></source>
    <translation>No trustees on this path or below it.</translation>
  </message>
  <message id="No_Parent_Trustees_Label">
    <source></source>
    <translation>No trustees on this path or the folders above it.</translation>
  </message>
  <message id="No_Match_Path_Label">
    <source></source>
    <extracomment>In an empty list; %1 is what was typed.</extracomment>
    <translation>No name or path matches “%1”.</translation>
  </message>
  <!-- File-system rights -->
  <message id="FSR_Label_Title">
    <source></source>
    <translation>Every path below on which one user or group is a trustee:</translation>
  </message>
  <message id="Choose_FSR_Tip_Label">
    <source></source>
    <translation>Choose the user or group whose paths you want to see</translation>
  </message>
  <message id="Group_Rights">
    <source></source>
    <extracomment>A button: what a user holds through groups.</extracomment>
    <translation>&amp;Group Rights…</translation>
  </message>
  <message id="Group_Rights_Tip_Label">
    <source></source>
    <translation>Show what this user holds through its groups</translation>
  </message>
  <message id="Add_Remove_Path_Label">
    <source></source>
    <translation>Add or remove paths:</translation>
  </message>
  <message id="Add_Path_Tip_Label">
    <source></source>
    <translation>Choose files and folders on which this user or group becomes a trustee</translation>
  </message>
  <message id="Remove_Path_Tip_Label">
    <source></source>
    <translation>Take this user or group off the selected paths</translation>
  </message>
  <message id="FSR_Read_Only_Label">
    <source></source>
    <translation>Choosing a user or group takes the Supervisor right on this path.</translation>
  </message>
  <message id="FSR_Nobody_Label">
    <source></source>
    <translation>Choose a user or group to see its paths.</translation>
  </message>
  <message id="FSR_No_Paths_Label">
    <source></source>
    <translation>Not a trustee of any path below.</translation>
  </message>
  <message id="Group_Rights_Title">
    <source></source>
    <translation>Rights through Groups</translation>
  </message>
  <message id="Col_Group">
    <source></source>
    <extracomment>The header of a column.</extracomment>
    <translation>Group</translation>
  </message>
  <message id="No_Group_Rights_Label">
    <source></source>
    <translation>No group of this user is a trustee of a path below.</translation>
  </message>
  <!-- The folder browser -->
  <message id="Browse_Folder_Title">
    <source></source>
    <translation>Choose Files and Folders</translation>
  </message>
  <message id="Browse_Folder_Root_Label">
    <source></source>
    <extracomment>The first row of a tree of folders.</extracomment>
    <translation>Mounted volume</translation>
  </message>
  <message id="Volume_Not_Mounted_Label">
    <source></source>
    <extracomment>%1 is the name of a volume.</extracomment>
    <translation>The volume %1 is not mounted on this computer. Open it in the file manager, then try again.</translation>
  </message>
  <!-- Alerts -->
  <message id="Warning_Title">
    <source></source>
    <extracomment>The title of an alert.</extracomment>
    <translation>Warning</translation>
  </message>
  <message id="Error_Title">
    <source></source>
    <extracomment>The title of an alert.</extracomment>
    <translation>Error</translation>
  </message>
  <message id="View_label">
    <source></source>
    <extracomment>In front of a list of categories: users, groups.</extracomment>
    <translation>&amp;View:</translation>
  </message>
  <message id="Node_label">
    <source></source>
    <extracomment>In front of a list of domains.</extracomment>
    <translation>&amp;Domain:</translation>
  </message>
  <message id="Node_label_morvane">
    <source></source>
    <extracomment>In front of a field for a container of the tree.</extracomment>
    <translation>&amp;Below:</translation>
  </message>
  <message id="Users_Title">
    <source></source>
    <extracomment>A category of identities.</extracomment>
    <translation>Users</translation>
  </message>
  <message id="Groups_Title">
    <source></source>
    <extracomment>A category of identities.</extracomment>
    <translation>Groups</translation>
  </message>
  <message id="Containers_Title">
    <source></source>
    <extracomment>A category of identities: the branches of the tree.</extracomment>
    <translation>Containers</translation>
  </message>
  <message id="Fetch_title">
    <source></source>
    <extracomment>A button: asks the directory for names.</extracomment>
    <translation>&amp;Fetch</translation>
  </message>
  <message id="Fetch_Tip_Label">
    <source></source>
    <translation>Ask the directory</translation>
  </message>
  <message id="Select_title">
    <source></source>
    <extracomment>A button: takes the selected names.</extracomment>
    <translation>&amp;Select</translation>
  </message>
  <message id="Cancel_title">
    <source></source>
    <extracomment>A button.</extracomment>
    <translation>&amp;Cancel</translation>
  </message>
  <message id="OK_title">
    <source></source>
    <extracomment>A button.</extracomment>
    <translation>&amp;OK</translation>
  </message>
  <message id="Browse_AD_Title">
    <source></source>
    <translation>Choose from Active Directory</translation>
  </message>
  <message id="Browse_Morvane_Title">
    <source></source>
    <translation>Choose from the Morvane tree</translation>
  </message>
  <message id="Browse_List_Label">
    <source></source>
    <translation>Users and groups found</translation>
  </message>
  <message id="Browse_Choose_Label">
    <source></source>
    <extracomment>The first item of a list, before a choice.</extracomment>
    <translation>Choose…</translation>
  </message>
  <message id="Browse_AD_Start_Label">
    <source></source>
    <translation>Choose what to view and in which domain, then press Fetch.</translation>
  </message>
  <message id="Browse_Morvane_Start_Label">
    <source></source>
    <translation>Choose what to view, type where to look (for example .O=kestmoor.T=tree.) and press Fetch.</translation>
  </message>
  <message id="No_Domains_Label">
    <source></source>
    <translation>This computer knows no Active Directory domain.</translation>
  </message>
  <message id="Domain_Silent_Label">
    <source></source>
    <extracomment>In an empty list; %1 is the name of a domain.</extracomment>
    <translation>%1 does not answer. The log file has the details.</translation>
  </message>
  <message id="No_Users_In_Label">
    <source></source>
    <extracomment>In an empty list; %1 is the name of a domain.</extracomment>
    <translation>No users found in %1.</translation>
  </message>
  <message id="No_Groups_In_Label">
    <source></source>
    <extracomment>In an empty list; %1 is the name of a domain.</extracomment>
    <translation>No groups found in %1.</translation>
  </message>
  <message id="No_Users_Below_Label">
    <source></source>
    <extracomment>In an empty list; %1 is a container, which may end in a full stop.</extracomment>
    <translation>No users found below %1</translation>
  </message>
  <message id="No_Groups_Below_Label">
    <source></source>
    <extracomment>In an empty list; %1 is a container, which may end in a full stop.</extracomment>
    <translation>No groups found below %1</translation>
  </message>
  <message id="No_Containers_Below_Label">
    <source></source>
    <extracomment>In an empty list; %1 is a container, which may end in a full stop.</extracomment>
    <translation>No containers found below %1</translation>
  </message>
  <message id="No_Users_Label">
    <source></source>
    <translation>No users found.</translation>
  </message>
  <message id="No_Groups_Label">
    <source></source>
    <translation>No groups found.</translation>
  </message>
  <message id="Identify_Source_Title">
    <source></source>
    <translation>Choose a directory</translation>
  </message>
  <message id="Select_source_of_identity_Label">
    <source></source>
    <translation>Which directory do you want to choose from?</translation>
  </message>
  <message id="Morvane_title">
    <source></source>
    <extracomment>A choice: the tree of that name.</extracomment>
    <translation>&amp;Morvane</translation>
  </message>
  <message id="Active_Directory_title">
    <source></source>
    <translation>&amp;Active Directory</translation>
  </message>
  <message id="Add_Trustee_Message_Label">
    <source></source>
    <translation>When this is on, lists show the trustees of both directories, and wherever you choose a user or group you are asked first which directory to look in. The setting lasts until you quit Quorvan.</translation>
  </message>
  <message id="Settings_Read_Only_Label">
    <source></source>
    <translation>Only users who hold the Supervisor or the Access Control right on this path can change this.</translation>
  </message>
  <message id="Log_Details_Label">
    <source></source>
    <translation>Everything that Quorvan asks the server, and every answer, is written to a log file in this folder. Help shows where it lies on this computer.</translation>
  </message>
  <message id="Err_Msg_Duplicate_Trustee">
    <source></source>
    <translation>A user or group that you chose is in the list already and was left as it is.</translation>
  </message>
  <message id="Err_No_Object">
    <source></source>
    <translation>The server does not know this object.</translation>
  </message>
  <message id="Err_MI_Create_Failed">
    <source></source>
    <translation>The management connection to the server could not be set up.</translation>
  </message>
  <message id="Err_Fail_SalvagePurge">
    <source></source>
    <translation>The files could not be salvaged or purged.</translation>
  </message>
  <message id="Err_Invalid_FileName">
    <source></source>
    <translation>This file name contains characters that the server does not accept.</translation>
  </message>
  <message id="Err_Duplicate_FileName">
    <source></source>
    <translation>A file with this name exists already. Choose another name.</translation>
  </message>
  <message id="Err_Invalid_FilePath">
    <source></source>
    <translation>This path does not exist on the server or is not valid.</translation>
  </message>
  <message id="Err_Empty_FileName">
    <source></source>
    <translation>Enter a file name.</translation>
  </message>
  <message id="Err_NIT_Down">
    <source></source>
    <translation>The server's identity service does not answer. Ask the server's administrator to start it.</translation>
  </message>
  <message id="Err_No_Privilege">
    <source></source>
    <translation>You do not hold the rights that this operation needs.</translation>
  </message>
  <message id="Err_Purge_Warning">
    <source></source>
    <translation>Purging removes the files for good. They cannot be salvaged afterwards.</translation>
  </message>
  <message id="Err_CancelAll_Warning">
    <source></source>
    <translation>All changes that were not applied yet will be lost.</translation>
  </message>
  <message id="Err_Keychain_Not_Found">
    <source></source>
    <translation>The server's password was not found in the keyring. Mount the share with “Remember password”, then open Quorvan again.</translation>
  </message>
  <message id="Err_Pipe_Open_Failed">
    <source></source>
    <translation>The server's management service could not be opened.</translation>
  </message>
  <message id="Err_Operation_Failed">
    <source></source>
    <translation>The server did not complete the operation. Check the connection to the server, and that your keyring holds its password; then try again. The log file has the details.</translation>
  </message>
  <message id="Err_AD_Connect">
    <source></source>
    <translation>Active Directory cannot be reached. Check the network connection and try again.</translation>
  </message>
  <message id="Err_Logged_User_Morvane">
    <source></source>
    <translation>You are logged in to the server as a user of the Morvane directory, which this installation does not support. Quorvan will quit.</translation>
  </message>
  <message id="Waiting_Label">
    <source></source>
    <extracomment>At the lower edge of the window while the server has not answered; %1 is a number of seconds.</extracomment>
    <translation>Waiting for the server: %1 s</translation>
  </message>
  <message id="Group_Rights_Unknown_Label">
    <source></source>
    <translation>The rights of the groups could not be read.</translation>
  </message>
  <message id="Rights_Unknown_Label">
    <source></source>
    <extracomment>Of each check box of a right, when the rights could not be read.</extracomment>
    <translation>Not known: the rights could not be read.</translation>
  </message>
  <message id="Pending_Tip_Label">
    <source></source>
    <extracomment>Of the line beside Apply.</extracomment>
    <translation>Show what waits for Apply</translation>
  </message>
  <message id="Pending_Change_Label">
    <source></source>
    <extracomment>%1 is a name, %2 what is wanted for it: rights in words, or a limit.</extracomment>
    <translation>%1: %2</translation>
  </message>
  <message id="Pending_Removed_Label">
    <source></source>
    <extracomment>%1 is a name or a path.</extracomment>
    <translation>%1 will be removed</translation>
  </message>
  <message id="Pending_Not_Shown_Label">
    <source></source>
    <extracomment>%1 is a change in words.</extracomment>
    <translation>%1, not shown in the list</translation>
  </message>
  <message id="Pending_No_Rights_Label">
    <source></source>
    <extracomment>In place of the names of rights.</extracomment>
    <translation>no rights</translation>
  </message>
  <message id="Pending_Added_Row_Label">
    <source></source>
    <extracomment>For a screen reader; %1 is the name in a row.</extracomment>
    <translation>%1, new, waits for Apply</translation>
  </message>
  <message id="Pending_Changed_Row_Label">
    <source></source>
    <extracomment>For a screen reader; %1 is the name in a row.</extracomment>
    <translation>%1, changed, waits for Apply</translation>
  </message>
  <message id="Applied_Label">
    <source></source>
    <extracomment>After Apply; %1 is the time of day.</extracomment>
    <translation>Applied %1</translation>
  </message>
  <message id="Pending_Count_Label" numerus="yes">
    <source></source>
    <extracomment>Beside Apply.</extracomment>
    <translation>
      <numerusform>%n change waits for Apply</numerusform>
      <numerusform>%n changes wait for Apply</numerusform>
    </translation>
  </message>
  <message id="Pending_More_Label" numerus="yes">
    <source></source>
    <extracomment>At the end of a list that was cut.</extracomment>
    <translation>
      <numerusform>and %n more</numerusform>
      <numerusform>and %n more</numerusform>
    </translation>
  </message>
  <message id="Not_Applied_Label" numerus="yes">
    <source></source>
    <extracomment>%n is the number of changes that were sent, %1 how many of them were not made, %2 their names.</extracomment>
    <translation>
      <numerusform>The server did not take %1 of %n change: %2</numerusform>
      <numerusform>The server did not take %1 of %n changes: %2</numerusform>
    </translation>
  </message>
  <message id="Inherited_Filter_Label">
    <source></source>
    <extracomment>What a pending change is about; the rights that pass follow.</extracomment>
    <translation>Rights that are let through</translation>
  </message>
  <message id="Attributes_Change_Label">
    <source></source>
    <extracomment>What a pending change is about.</extracomment>
    <translation>Attributes</translation>
  </message>
  <message id="Owner_Change_Label">
    <source></source>
    <extracomment>What a pending change is about; a name follows.</extracomment>
    <translation>Owner</translation>
  </message>
  <message id="Quota_Change_Label">
    <source></source>
    <extracomment>What a pending change is about; an amount follows.</extracomment>
    <translation>Limit of the directory</translation>
  </message>
  <message id="Pending_None_Label">
    <source></source>
    <extracomment>In place of attributes or of an amount.</extracomment>
    <translation>none</translation>
  </message>
  <message id="Copy_title">
    <source></source>
    <extracomment>In the context menu of a table.</extracomment>
    <translation>&amp;Copy</translation>
  </message>
  <message id="Export_title">
    <source></source>
    <extracomment>In the context menu of a table, and the title of its dialog.</extracomment>
    <translation>&amp;Export as CSV…</translation>
  </message>
  <message id="Export_Filter_Label">
    <source></source>
    <extracomment>In the dialog that asks for a file.</extracomment>
    <translation>Comma-separated values (*.csv)</translation>
  </message>
  <message id="Exported_Label">
    <source></source>
    <extracomment>%1 is a file.</extracomment>
    <translation>Exported to %1</translation>
  </message>
  <message id="Not_Exported_Label">
    <source></source>
    <extracomment>%1 is a file, %2 why it could not be written.</extracomment>
    <translation>%1 was not written: %2</translation>
  </message>
  <message id="No_Reload_Label">
    <source></source>
    <extracomment>After the key that reads a page anew.</extracomment>
    <translation>Not read again: there are changes that wait for Apply. Apply or revert them first.</translation>
  </message>
  <message id="Take_Off_title">
    <source></source>
    <extracomment>Button below the users whose limit is entered.</extracomment>
    <translation>Take &amp;Off</translation>
  </message>
  <message id="Take_Off_Tip_Label">
    <source></source>
    <translation>Take the selected users off this list</translation>
  </message>
  <message id="Current_Limit_Label">
    <source></source>
    <extracomment>Beside the field for a limit; %1 is an amount of space.</extracomment>
    <translation>now %1</translation>
  </message>
  <message id="Current_Limits_Label">
    <source></source>
    <extracomment>Beside the field for a limit, of users with different ones; %1 and %2 are amounts of space.</extracomment>
    <translation>now %1 to %2</translation>
  </message>
  <message id="Over_Limit_Row_Label">
    <source></source>
    <extracomment>For a screen reader; %1 is an amount of space.</extracomment>
    <translation>%1, over the limit</translation>
  </message>
  <message id="Over_Limit_Tip_Label">
    <source></source>
    <extracomment>Of the space that a user takes.</extracomment>
    <translation>More than the limit allows</translation>
  </message>
  <message id="Over_Limit_Next_Tip_Label">
    <source></source>
    <extracomment>Of the button that says how many users are over their limit.</extracomment>
    <translation>Go to the next one</translation>
  </message>
  <message id="Over_Limit_Label" numerus="yes">
    <source></source>
    <extracomment>Above the table of users; %n is their number.</extracomment>
    <translation>
      <numerusform>%n user is over the limit</numerusform>
      <numerusform>%n users are over their limit</numerusform>
    </translation>
  </message>
  <message id="Connecting_Label">
    <source></source>
    <extracomment>In a small window at the start, until the server has answered; %1 is its name.</extracomment>
    <translation>Connecting to %1…</translation>
  </message>
  <message id="Connection_Lost_Label">
    <source></source>
    <extracomment>%1 is the name of the server. One of the two next texts follows.</extracomment>
    <translation>The connection to %1 was lost.</translation>
  </message>
  <message id="Connection_Lost_Reading_Label">
    <source></source>
    <translation>Not everything could be read.</translation>
  </message>
  <message id="Connection_Lost_Changes_Label" numerus="yes">
    <source></source>
    <extracomment>After changes were sent and before the server confirmed them. They are still pending in the page.</extracomment>
    <translation>
      <numerusform>%n change may or may not have been made. Apply sends it again; Revert reads again what is there.</numerusform>
      <numerusform>%n changes may or may not have been made. Apply sends them again; Revert reads again what is there.</numerusform>
    </translation>
  </message>
  <message id="Supervisor_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: has every right here and on everything below, whatever else is ticked; no filter stops it.</translation>
  </message>
  <message id="Read_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: open files and read them.</translation>
  </message>
  <message id="Write_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: open files and change what is in them.</translation>
  </message>
  <message id="Erase_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: delete files and folders.</translation>
  </message>
  <message id="Create_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: make new files and folders.</translation>
  </message>
  <message id="Modify_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: rename files and folders and change their attributes.</translation>
  </message>
  <message id="File_Scan_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: see files and folders in listings.</translation>
  </message>
  <message id="Access_Control_Explained_Label">
    <source></source>
    <extracomment>What a right is for; %1 is its name.</extracomment>
    <translation>%1: change who holds which rights here, and what is inherited.</translation>
  </message>
  <message id="Row_Explained_Label">
    <source></source>
    <translation>What a row says takes the place of what the same user or group has from the folders above. A row without a tick leaves nothing of it.</translation>
  </message>
  <message id="Grant_title">
    <source></source>
    <extracomment>In the menu of a table of rights; the rights follow in a menu of their own.</extracomment>
    <translation>&amp;Grant</translation>
  </message>
  <message id="Take_Away_title">
    <source></source>
    <extracomment>In the menu of a table of rights; the rights follow in a menu of their own.</extracomment>
    <translation>&amp;Take Away</translation>
  </message>
  <message id="Set_Rights_title">
    <source></source>
    <extracomment>In the menu of a table of rights; the four below follow in a menu of their own.</extracomment>
    <translation>&amp;Set Rights To</translation>
  </message>
  <message id="Preset_Read_title">
    <source></source>
    <extracomment>In a menu: the rights to read and to see names.</extracomment>
    <translation>&amp;Read</translation>
  </message>
  <message id="Preset_Write_title">
    <source></source>
    <translation>Read and &amp;Write</translation>
  </message>
  <message id="Preset_All_title">
    <source></source>
    <translation>&amp;Everything but Supervisor</translation>
  </message>
  <message id="Preset_None_title">
    <source></source>
    <extracomment>In a menu: none of the rights.</extracomment>
    <translation>&amp;Nothing</translation>
  </message>
  <message id="Show_Log_title">
    <source></source>
    <extracomment>In the Help menu.</extracomment>
    <translation>Show &amp;Log File</translation>
  </message>
  <message id="No_Log_Viewer_Label">
    <source></source>
    <extracomment>%1 is its path.</extracomment>
    <translation>No program opened the log file: %1</translation>
  </message>
  <message id="Why_Nothing_Waits_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>There is nothing to apply or to take back</translation>
  </message>
  <message id="Why_Needs_Rights_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Takes the Supervisor or Access Control right here</translation>
  </message>
  <message id="Why_Needs_Supervisor_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Takes the Supervisor right here</translation>
  </message>
  <message id="Why_Both_Shown_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Not while both directories are shown together</translation>
  </message>
  <message id="Why_Nobody_Chosen_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Choose a user or group first</translation>
  </message>
  <message id="Why_Not_A_User_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Only users have rights through groups</translation>
  </message>
  <message id="Why_Read_Only_File_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>What is read-only can be neither renamed nor deleted</translation>
  </message>
  <message id="Why_File_Only_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Files are compressed, not folders</translation>
  </message>
  <message id="Why_Being_Edited_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>The limit is being edited</translation>
  </message>
  <message id="Why_Nothing_Selected_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Select something in the list first</translation>
  </message>
  <message id="Why_No_Place_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Say first where to look</translation>
  </message>
  <message id="FSR_Not_Allowed_Label">
    <source></source>
    <translation>Seeing the paths of a user or group takes the Supervisor right here.</translation>
  </message>
  <message id="Group_Rights_Of_Label">
    <source></source>
    <extracomment>Above the list of groups; %1 is the name of a user.</extracomment>
    <translation>What %1 holds through groups</translation>
  </message>
  <message id="Salvage_Purge_title">
    <source></source>
    <translation>Sal&amp;vage and Purge: not in this version</translation>
  </message>
  <message id="Path_Outside_Label">
    <source></source>
    <extracomment>%1 is the managed path, %2 are the chosen paths that lie outside.</extracomment>
    <translation>Not below %1, and so not listed here after Apply: %2</translation>
  </message>
  <message id="No_Password_Label">
    <source></source>
    <extracomment>%1 is the name of a server.</extracomment>
    <translation>The keyring holds no password for %1. Mount a share of it in the file manager with “Remember password”, then try again.</translation>
  </message>
  <message id="Handover_Nothing_Label">
    <source></source>
    <translation>Choose a file or folder of a mounted share in the file manager, and take “Manage Rights…” from its menu.</translation>
  </message>
  <message id="Handover_Several_Label">
    <source></source>
    <translation>Quorvan works on one file or folder at a time.</translation>
  </message>
  <message id="Handover_No_Share_Label">
    <source></source>
    <extracomment>Of the program that the menus of file managers call; %1 is what was chosen there.</extracomment>
    <translation>“%1” is not on a mounted SMB share.</translation>
  </message>
  <message id="Handover_Gone_Label">
    <source></source>
    <extracomment>Of the program that the menus of file managers call; %1 is what was chosen there.</extracomment>
    <translation>“%1” is not there any more.</translation>
  </message>
  <message id="Handover_Unknown_Share_Label">
    <source></source>
    <extracomment>Of the program that the menus of file managers call; %1 is what was chosen there.</extracomment>
    <translation>The table of shares, shares.conf, does not say which path of the server “%1” lies below.</translation>
  </message>
  <message id="Handover_Odd_Name_Label">
    <source></source>
    <extracomment>Of the program that the menus of file managers call; %1 is what was chosen there.</extracomment>
    <translation>“%1” has a name in its path that cannot be handed over.</translation>
  </message>
  <message id="Handover_Not_Written_Label">
    <source></source>
    <translation>The selection could not be handed over: group.tarnix.common.plist in your folder of configurations cannot be written.</translation>
  </message>
  <message id="Handover_Not_Started_Label">
    <source></source>
    <translation>The program quorvan could not be started.</translation>
  </message>
  <message id="Why_title">
    <source></source>
    <extracomment>In the menu of a table of rights.</extracomment>
    <translation>&amp;Why Does This User or Group Have These Rights…</translation>
  </message>
  <message id="Why_Button_title">
    <source></source>
    <extracomment>Beside the chosen user or group, whose rights it explains.</extracomment>
    <translation>&amp;Why…</translation>
  </message>
  <message id="Why_Button_Tip_Label">
    <source></source>
    <translation>Show where these rights come from and what stops others</translation>
  </message>
  <message id="Why_Window_Title">
    <source></source>
    <extracomment>%1 is the name of a user or group.</extracomment>
    <translation>Why: %1 – %2</translation>
  </message>
  <message id="Why_Served_Label">
    <source></source>
    <translation>What the server grants here:</translation>
  </message>
  <message id="Why_Served_More_Label">
    <source></source>
    <extracomment>%1 are rights in words.</extracomment>
    <translation>The server grants %1; from what can be seen here that cannot be explained.</translation>
  </message>
  <message id="Why_Served_Less_Label">
    <source></source>
    <extracomment>%1 are rights in words.</extracomment>
    <translation>By what can be seen here %1 should be granted, but the server does not grant it.</translation>
  </message>
  <message id="Why_Right_Label">
    <source></source>
    <extracomment>The header of a column of rights.</extracomment>
    <translation>Right</translation>
  </message>
  <message id="Why_Holds_Label">
    <source></source>
    <extracomment>The header of a column: whether the right is held.</extracomment>
    <translation>Holds</translation>
  </message>
  <message id="Why_Reason_Label">
    <source></source>
    <extracomment>The header of a column.</extracomment>
    <translation>Why</translation>
  </message>
  <message id="Why_Way_Label">
    <source></source>
    <translation>The way from the volume to this path:</translation>
  </message>
  <message id="Why_Granted_Label">
    <source></source>
    <extracomment>The header of a column: to whom which rights are granted on a folder.</extracomment>
    <translation>Granted here</translation>
  </message>
  <message id="Why_Passes_Label">
    <source></source>
    <translation>Let through from above</translation>
  </message>
  <message id="Why_Passes_All_Label">
    <source></source>
    <extracomment>In place of the rights that a filter lets through.</extracomment>
    <translation>everything</translation>
  </message>
  <message id="Why_Not_Visible_Label">
    <source></source>
    <extracomment>Of a folder that may not be read.</extracomment>
    <translation>not visible</translation>
  </message>
  <message id="Why_Yes_Label">
    <source></source>
    <extracomment>The right is held.</extracomment>
    <translation>yes</translation>
  </message>
  <message id="Why_No_Label">
    <source></source>
    <extracomment>The right is not held.</extracomment>
    <translation>no</translation>
  </message>
  <message id="Why_Granted_Self_Label">
    <source></source>
    <extracomment>%1 is the name of a user or group, %2 a path.</extracomment>
    <translation>Granted to %1 on %2</translation>
  </message>
  <message id="Why_Granted_Group_Label">
    <source></source>
    <extracomment>%1 is the name of a group or container, %2 a path.</extracomment>
    <translation>Granted on %2 to %1, of which it is a member</translation>
  </message>
  <message id="Why_Filtered_Label">
    <source></source>
    <extracomment>Goes on after “Granted to … on …”; %1 is a path.</extracomment>
    <translation>; stopped by the filter of %1</translation>
  </message>
  <message id="Why_Replaced_Label">
    <source></source>
    <extracomment>Goes on after “Granted to … on …”; %1 is a path.</extracomment>
    <translation>; replaced by the assignment on %1</translation>
  </message>
  <message id="Why_By_Supervisor_Label">
    <source></source>
    <translation>Comes with Supervisor</translation>
  </message>
  <message id="Why_Nowhere_Label">
    <source></source>
    <translation>Nowhere granted</translation>
  </message>
  <message id="Why_Decides_Label">
    <source></source>
    <extracomment>For a screen reader; of the folder where the selected right is decided.</extracomment>
    <translation>decides</translation>
  </message>
  <message id="Why_Unknown_Label">
    <source></source>
    <translation>This could not be read from the server.</translation>
  </message>
  <message id="Why_Invisible_Label">
    <source></source>
    <extracomment>%1 is a path.</extracomment>
    <translation>%1 could not be read; what is granted there and above is not visible.</translation>
  </message>
  <message id="Why_Everyone_Label">
    <source></source>
    <extracomment>%1 is a path, %2 are rights in words, %3 is the name of a group such as Everyone.</extracomment>
    <translation>%3 is granted these rights on %1: %2. Whether that counts here, the directory does not say.</translation>
  </message>
  <message id="Why_No_Assignment_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Select a reason that names an assignment</translation>
  </message>
  <message id="Why_Go_To_title">
    <source></source>
    <translation>Show in Trustee &amp;Directories</translation>
  </message>
  <message id="Why_Go_To_Tip_Label">
    <source></source>
    <translation>Close this sheet and go to the assignment, where it can be changed</translation>
  </message>
  <message id="Why_Copy_title">
    <source></source>
    <extracomment>A button.</extracomment>
    <translation>Co&amp;py as Text</translation>
  </message>
  <message id="Why_Copy_Tip_Label">
    <source></source>
    <translation>Copy all of this, for a ticket or an audit</translation>
  </message>
  <message id="Help_Contents_title">
    <source></source>
    <extracomment>In the Help menu: opens the user guide.</extracomment>
    <translation>&amp;Contents</translation>
  </message>
  <message id="No_Guide_Label">
    <source></source>
    <extracomment>%1 is its path.</extracomment>
    <translation>The user guide could not be opened: %1</translation>
  </message>
  <message id="List_Refused_Label">
    <source></source>
    <extracomment>In an empty list.</extracomment>
    <translation>The server refused to list them.</translation>
  </message>
  <message id="List_Unreadable_Label">
    <source></source>
    <extracomment>In an empty list.</extracomment>
    <translation>The server’s answer could not be read.</translation>
  </message>
  <message id="List_Partly_Refused_Label">
    <source></source>
    <translation>Not everything is listed: the server refused at least a part of it.</translation>
  </message>
  <message id="List_Partly_Unreadable_Label">
    <source></source>
    <translation>Not everything is listed: an answer of the server could not be read.</translation>
  </message>
  <message id="Right_Stopped_Label">
    <source></source>
    <extracomment>Of a box of a right, as a tip and for a screen reader; %1 is what it says otherwise, %2 a path.</extracomment>
    <translation>%1, stopped by the filter of %2</translation>
  </message>
  <message id="Stopped_title">
    <source></source>
    <extracomment>A button: marks rights that a filter stops on their way.</extracomment>
    <translation>Mark S&amp;topped Rights</translation>
  </message>
  <message id="Stopped_Tip_Label">
    <source></source>
    <translation>Read the filters of the folders above and mark the rights that do not arrive here</translation>
  </message>
  <message id="Stopped_None_Label">
    <source></source>
    <translation>No filter on the way stops any of these rights.</translation>
  </message>
  <message id="Stopped_Unread_Label">
    <source></source>
    <extracomment>%1 are one or more paths.</extracomment>
    <translation>Could not be read, so that what its filter stops is not marked: %1</translation>
  </message>
  <message id="Why_Export_title">
    <source></source>
    <extracomment>A button: writes an explanation to a file.</extracomment>
    <translation>E&amp;xport…</translation>
  </message>
  <message id="Why_Export_Filter_Label">
    <source></source>
    <extracomment>A kind of files, as a file dialog lists it.</extracomment>
    <translation>Text (*.txt)</translation>
  </message>
  <message id="Why_Leave_Pending_Label">
    <source></source>
    <extracomment>Why a button is grey.</extracomment>
    <translation>Apply or revert the changes first: leaving the page would lose them</translation>
  </message>
  <message id="Why_On_Server_Label">
    <source></source>
    <extracomment>%1 is a path, %2 the server to which a link has led.</extracomment>
    <translation>%1 on %2</translation>
  </message>
  <message id="Why_Unstoppable_Label">
    <source></source>
    <extracomment>At the end of a sentence about the Supervisor right.</extracomment>
    <translation>; nothing stops it</translation>
  </message>
  <message id="Why_On_Way_Label">
    <source></source>
    <extracomment>For a screen reader: a selected right passes through this folder.</extracomment>
    <translation>on its way</translation>
  </message>
  <message id="Why_Change_Label">
    <source></source>
    <extracomment>In front of assignments that a person would have to change.</extracomment>
    <translation>What would change it:</translation>
  </message>
  <message id="Why_Take_Label">
    <source></source>
    <extracomment>%1 is a right, %2 a name, %3 a path.</extracomment>
    <translation>Take %1 from %2 on %3</translation>
  </message>
  <message id="Why_Take_Also_Label">
    <source></source>
    <extracomment>As Why_Take_Label, beside another one.</extracomment>
    <translation>And take %1 from %2 on %3</translation>
  </message>
  <message id="Why_Give_Label">
    <source></source>
    <extracomment>%1 is a right, %2 a name, %3 a path where another assignment takes the place of this right.</extracomment>
    <translation>Grant %1 to %2 on %3, too</translation>
  </message>
  <message id="Why_Let_Through_Label">
    <source></source>
    <extracomment>%1 is a right, %2 a path.</extracomment>
    <translation>Let %1 through the filter of %2</translation>
  </message>
  <message id="Why_Nothing_Chosen_Label">
    <source></source>
    <extracomment>Before a right is selected.</extracomment>
    <translation>Select a right above.</translation>
  </message>
  <message id="Why_Nothing_There_Label">
    <source></source>
    <extracomment>Of a right that nobody has granted.</extracomment>
    <translation>It would have to be granted here or on a folder above.</translation>
  </message>
  <message id="Why_Named_title">
    <source></source>
    <extracomment>In the context menu of a table; %1 is a name.</extracomment>
    <translation>&amp;Why Does %1 Have These Rights Here?</translation>
  </message>
  <message id="Stopped_Count_Label" numerus="yes">
    <source></source>
    <translation>
      <numerusform>%n right does not arrive here: it is underlined, and its tip names the folder that stops it</numerusform>
      <numerusform>%n rights do not arrive here: they are underlined, and their tips name the folders that stop them</numerusform>
    </translation>
  </message>
  <message id="Sent_In_Doubt_Label">
    <source></source>
    <extracomment>After Apply, when the list could not be read again; %1 are changes in words.</extracomment>
    <translation>Sent, but what came of it could not be read: %1</translation>
  </message>
  <message id="Sent_Outside_Label">
    <source></source>
    <extracomment>After Apply; %1 are changes in words, of paths that the list does not hold.</extracomment>
    <translation>Sent; what came of it is not in this list: %1</translation>
  </message>
  <message id="Edit_Nobody_Label">
    <source></source>
    <extracomment>In the empty list of a dialog that edits limits.</extracomment>
    <translation>No user was selected in the table.
Add users here, or close and select some there.</translation>
  </message>
  <message id="Why_Only_Shown_Label">
    <source></source>
    <extracomment>Why a box of a right cannot be clicked.</extracomment>
    <translation>Shown here, not changed here</translation>
  </message>
  <message id="Attribute_On_Label">
    <source></source>
    <extracomment>What an attribute of a file is to be.</extracomment>
    <translation>on</translation>
  </message>
  <message id="Attribute_Off_Label">
    <source></source>
    <extracomment>What an attribute of a file is to be.</extracomment>
    <translation>off</translation>
  </message>
  <message id="Attributes_As_Before_Label">
    <source></source>
    <extracomment>What attributes of a file are to be that were changed and changed back.</extracomment>
    <translation>as before</translation>
  </message>
  <message id="Why_One_Only_Label">
    <source></source>
    <extracomment>Why a control is grey.</extracomment>
    <translation>Select a single row first</translation>
  </message>
  <message id="Quorvan_Help_Label">
    <source></source>
    <extracomment>Printed on a terminal: lines of at most 80 columns. The options stay as they are.</extracomment>
    <translation>Usage: quorvan [--help] [--version]

Shows and edits the rights on the file or folder that was chosen in the file
manager, whose menu starts it; on its own it works on the last selection.

  -h, --help     show this text and end
  -v, --version  show the version and end</translation>
  </message>
  <message id="Handover_Help_Label">
    <source></source>
    <extracomment>Printed on a terminal: lines of at most 80 columns. The options stay as they are.</extracomment>
    <translation>Usage: quorvan-handover PATH|URI

Opens Quorvan on a file or folder of a mounted SMB share: a local path, or an
address smb://HOST/SHARE/path. The menus of the file managers call it.

  -h, --help     show this text and end
  -v, --version  show the version and end</translation>
  </message>
</context>
</TS>

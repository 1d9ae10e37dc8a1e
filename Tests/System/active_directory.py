#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Provisions a domain controller in a folder, fills its directory and becomes it.

active_directory.py FOLDER ADDRESS. Accounts: userNNNN, groupNNN, and one whose name holds every character
that means something in a filter. Prints "filled" before the server starts. With --obstacle it only says
what keeps it from running here.
"""
import os
import pathlib
import socket
import subprocess
import sys

USERS, GROUPS, MEMBERS = 2500, 200, 50
PASSWORD = "Pl3nty-0f-s3crets"
SHARES = "cifs/" + socket.gethostname()  # of a file server beside this one, which has cifs.keytab
ODD = "Zoë (q*x\\y)"

if sys.argv[1] == "--obstacle":
    missing = [program for program in ("samba", "samba-tool", "openssl", "kinit")
               if not any(os.access(f"{folder}/{program}", os.X_OK) for folder in ("/usr/bin", "/usr/sbin"))]
    if not os.path.exists("/usr/share/samba/setup/ad-schema"):
        missing.append("samba-ad-provision")
    print("not installed: " + ", ".join(missing) if missing else "" if os.geteuid() == 0 else "needs root")
    sys.exit()

import ldb  # noqa: E402
import samba  # noqa: E402
from samba.auth import system_session  # noqa: E402
from samba.param import LoadParm  # noqa: E402
from samba.samdb import SamDB  # noqa: E402

top, address = pathlib.Path(sys.argv[1]), sys.argv[2]
quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, "check": True}

(top / "extensions").write_text(f"subjectAltName=IP:{address}\n")
for name in ("ca", "other"):
    subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                    "-days", "2", "-subj", f"/CN={name}", "-keyout", top / f"{name}.key", "-out", top / f"{name}.pem"], **quiet)
subprocess.run(["openssl", "req", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=dc1", "-keyout", top / "dc.key",
                "-out", top / "dc.csr"], **quiet)
subprocess.run(["openssl", "x509", "-req", "-in", top / "dc.csr", "-CA", top / "ca.pem", "-CAkey", top / "ca.key",
                "-CAcreateserial", "-days", "2", "-extfile", top / "extensions", "-out", top / "dc.pem"], **quiet)
(top / "dc.key").chmod(0o600)

subprocess.run(["samba-tool", "domain", "provision", "--server-role=dc", "--dns-backend=NONE", "--host-name=dc1",
                f"--targetdir={top}", "--realm=QUORVAN.TEST", "--domain=QUORVAN", f"--adminpass={PASSWORD}",
                f"--host-ip={address}"], **quiet)
configuration = top / "etc/smb.conf"
configuration.write_text(f"""[global]
workgroup = QUORVAN
realm = QUORVAN.TEST
netbios name = DC1
server role = active directory domain controller
server services = ldap, kdc
interfaces = {address}/8
bind interfaces only = yes
private dir = {top}/private
lock directory = {top}
state directory = {top}/state
cache directory = {top}/cache
pid directory = {top}/run
ncalrpc dir = {top}/run/ncalrpc
winbindd socket directory = {top}/run/winbindd
log file = {top}/run/log
tls keyfile = {top}/dc.key
tls certfile = {top}/dc.pem
tls cafile = {top}/ca.pem
""")
(top / "run").mkdir()

parameters = LoadParm()
parameters.load(str(configuration))
directory = SamDB(url=str(top / "private/sam.ldb"), session_info=system_session(parameters), lp=parameters)
base = str(directory.domain_dn())
below = ",CN=Users," + base
directory.transaction_start()
for i in range(USERS):
    directory.add({"dn": f"CN=user{i:04}{below}", "objectClass": "user", "sAMAccountName": f"user{i:04}"})
for i in range(GROUPS):
    group = {"dn": f"CN=group{i:03}{below}", "objectClass": "group", "sAMAccountName": f"group{i:03}"}
    if i < 2:
        group["member"] = [f"CN=user{n:04}{below}" for n in range(MEMBERS)]
    if i == 2:
        group["member"] = [f"CN=group000{below}"]
    directory.add(group)
odd = "CN=" + ODD.replace("\\", "\\5c") + below
directory.add({"dn": odd, "objectClass": "user", "sAMAccountName": "odd"})
directory.modify_ldif(f"dn: CN=DC1,OU=Domain Controllers,{base}\nchangetype: modify\n"
                      f"add: servicePrincipalName\nservicePrincipalName: ldap/{address}\n")
# The file server is no member of the domain, and takes tickets that say nothing of groups (0x2000000).
directory.add({"dn": "CN=shares" + below, "objectClass": "user", "sAMAccountName": "shares",
               "servicePrincipalName": SHARES, "userAccountControl": str(0x2000000 | 0x200),
               "unicodePwd": f'"{PASSWORD}"'.encode("utf-16-le")})
directory.transaction_commit()
del directory
# The rules for account names forbid some of these characters; what is in a directory need not obey them.
store = samba.Ldb(str(top / f"private/sam.ldb.d/{base.upper()}.ldb"), lp=parameters)
change = ldb.Message(ldb.Dn(store, odd))
change["name"] = ldb.MessageElement(ODD, ldb.FLAG_MOD_REPLACE, "sAMAccountName")
store.modify(change)
del store

subprocess.run(["samba-tool", "domain", "exportkeytab", top / "cifs.keytab", f"--principal={SHARES}",
                f"--configfile={configuration}"], **quiet)

print("filled", flush=True)
os.execv("/usr/sbin/samba", ["samba", "-F", "-M", "single", "--no-process-group", "-s", str(configuration)])

# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""The configuration files of a root, as a distribution would ship them."""

MAIN = """\
[main]
cachedir=/var/cache/yum/$basearch/$releasever
keepcache=0
debuglevel=2
logfile=/var/log/yum.log
exactarch=1
obsoletes=1
gpgcheck=1
plugins=1
installonly_limit=3
bugtracker_url=https://bugs.aster.example/
distroverpkg=aster-release


#  This is the default, if you make this bigger yum won't see if the metadata
# is newer on the remote and so you'll "gain" the bandwidth of not having to
# download the new metadata and "pay" for it by yum not having correct
# information.
# metadata_expire=90m

# PUT YOUR REPOS HERE OR IN separate files named file.repo
# in /etc/yum.repos.d
"""

ASTER = """\
# Aster-Base.repo
#
# The packages of the release and their updates.
# If the baseurl= does not work for you, as a fall back you can try the
# remarked out mirrorlist= line instead.

[base]
name=Aster Linux $releasever - Base
#mirrorlist=https://mirrors.aster.example/?release=$releasever&arch=$basearch&repo=base
baseurl=file://@ROOT@/srv/repos/$releasever/$basearch/base/
gpgcheck=1
gpgkey=file://@ROOT@/etc/pki/rpm-gpg/RPM-GPG-KEY-aster

#released updates
[updates]
name=Aster Linux $releasever - Updates
baseurl=file://@ROOT@/srv/repos/$releasever/$basearch/updates/
        file://@ROOT@/srv/mirror/$releasever/$basearch/updates/
gpgcheck=1
gpgkey=file://@ROOT@/etc/pki/rpm-gpg/RPM-GPG-KEY-aster
"""

EXTRAS = """\
[extras]
name = Extra packages for Aster Linux $releasever - $basearch
baseurl = file://@ROOT@/srv/repos/$releasever/$basearch/extras
enabled = 1
gpgcheck = 1
gpgkey = file://@ROOT@/etc/pki/rpm-gpg/RPM-GPG-KEY-aster
         file://@ROOT@/srv/repos/RPM-GPG-KEY-foundry
exclude = shunned
metadata_expire = 6h
"""

FOUNDRY = """\
# A vendor's repository: packages and metadata are signed with the vendor's own key.
[foundry]
name=Foundry packages
baseurl=file://@ROOT@/srv/repos/$releasever/$basearch/foundry/
enabled=0
gpgcheck=1
repo_gpgcheck=1
gpgkey=file://@ROOT@/srv/repos/RPM-GPG-KEY-foundry

[foundry-source]
name=Foundry packages - Source
baseurl=https://foundry.example/$contentdir/source/
enabled=0
gpgcheck=0
"""

BULK = """\
[bulk]
name=Three hundred small packages
baseurl=file://@ROOT@/srv/repos/$releasever/$basearch/bulk/
enabled=0
gpgcheck=1
gpgkey=file://@ROOT@/etc/pki/rpm-gpg/RPM-GPG-KEY-aster
cost=2000
"""

FILES = {
    "etc/yum.conf": MAIN,
    "etc/yum.repos.d/Aster-Base.repo": ASTER,
    "etc/yum.repos.d/aster-extras.repo": EXTRAS,
    "etc/yum.repos.d/foundry.repo": FOUNDRY,
    "etc/yum.repos.d/bulk.repo": BULK,
    "etc/yum/vars/contentdir": "pub/aster\n",
    "root/.rpmmacros": "# Some distributions' rpm looks for its database in the home directory.\n"
                       "%_dbpath /var/lib/rpm\n",
}

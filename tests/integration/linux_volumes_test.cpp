// The drives the drive list offers, from a mount table in the kernel's format.
#include <gtest/gtest.h>

#include <QStringList>

#include "engine/LinuxVolumes.h"

using namespace sonarium;

TEST(LinuxVolumes, RootFirstThenMediaThenOtherRealFileSystemsAndNoPseudoOnesElseTheRoot) {
    const QByteArray table =
        "proc /proc proc rw 0 0\n"
        "/dev/sda2 /home ext4 rw 0 0\n"
        "/dev/sda1 / ext4 rw 0 0\n"
        "tmpfs /run tmpfs rw 0 0\n"
        "/dev/sdb1 /media/me/My\\040Stick vfat rw 0 0\n"
        "/dev/sda3 /boot/efi vfat rw 0 0\n"
        "/dev/loop0 /snap/core/1 squashfs ro 0 0\n"
        "sysfs /sys sysfs rw 0 0\n"
        "/dev/sr0 /mnt/cdrom iso9660 ro 0 0\n";
    std::vector<Volume> v = LinuxVolumes::fromMountTable(table);
    QStringList roots;
    for (const Volume& vol : v) roots << vol.root;
    EXPECT_EQ(roots, QStringList({"/", "/media/me/My Stick", "/mnt/cdrom", "/home"}));

    // A table that can't be read still has the root.
    LinuxVolumes missing(QStringLiteral("/nonexistent/mounts"));
    ASSERT_FALSE(missing.list().empty());
    EXPECT_EQ(missing.list().front().root, "/");
    EXPECT_TRUE(missing.ready("/"));
    EXPECT_FALSE(missing.ready("/nonexistent/volume"));
}

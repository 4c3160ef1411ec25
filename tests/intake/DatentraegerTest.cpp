// Der Linux-Datenträger über einer erfundenen Einhängetabelle und einem erfundenen sysfs.
#include "platform/EinhaengeTabelle.h"
#include "platform/LinuxDatentraeger.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {
namespace fs = std::filesystem;

const std::string kTabelle = "22 1 254:0 / / rw,relatime shared:1 - ext4 /dev/vda rw\n"
                             "30 22 8:17 / /media/anna/USB\\040STICK rw,nosuid shared:5 master:2 - vfat /dev/sdb1 rw\n"
                             "31 22 11:0 / /media/anna/CDROM ro - iso9660 /dev/sr0 ro\n"
                             "32 22 0:45 / /mnt/netz rw - nfs4 server:/export rw\n"
                             "33 22 0:46 / /tmp rw - tmpfs tmpfs rw\n"
                             "34 22 8:2 / /daten rw - ext4 /dev/sda2 rw\n"
                             "35 22 8:33 / /media/anna/Karte rw - exfat /dev/sdc1 rw\n"
                             "37 22 8:48 / /srv/wechsel rw - ext4 /dev/sdd rw\n"
                             "kaputt\n"
                             "36 22 8:2 /unter /daten/x rw -\n";

// sysfs: dev/block/MAJ:MIN zeigt auf das Gerät; "removable" steht beim Gerät oder, bei einer
// Partition, bei ihrer Platte (removableIn, relativ zu devices/).
void GerätAnlegen(const TestOrdner& o, const std::string& nummer, const std::string& gerät,
                  const std::string& removableIn, const char* removable) {
    fs::create_directories(o / ("sys/devices/" + gerät));
    DateiSchreiben(o / ("sys/devices/" + removableIn + "/removable"), std::string(removable) + "\n");
    fs::create_directories(o / "sys/dev/block");
    fs::create_directory_symlink("../../devices/" + gerät, o / ("sys/dev/block/" + nummer));
}

struct Aufbau {
    TestOrdner o;
    Aufbau() {
        DateiSchreiben(o / "mountinfo", kTabelle);
        GerätAnlegen(o, "254:0", "pci0000:00/virtio2/block/vda", "pci0000:00/virtio2/block/vda", "0");
        GerätAnlegen(o, "8:17", "pci0000:00/usb1/1-1/host6/block/sdb/sdb1", "pci0000:00/usb1/1-1/host6/block/sdb", "0");
        GerätAnlegen(o, "8:2", "pci0000:00/ata1/block/sda/sda2", "pci0000:00/ata1/block/sda", "0");
        GerätAnlegen(o, "8:33", "pci0000:00/mmc0/block/sdc/sdc1", "pci0000:00/mmc0/block/sdc", "1");
        GerätAnlegen(o, "8:48", "pci0000:00/sata2/block/sdd", "pci0000:00/sata2/block/sdd", "1");
        fs::create_directories(o / "labels");
        fs::create_symlink("../../sdb1", o / "labels/USB\\x20STICK");
        fs::create_symlink("../../sda2", o / "labels/Daten");
    }
    LinuxDatenträger::Quellen Quellen() const { return {o / "mountinfo", o / "sys", o / "labels"}; }
};
}  // namespace

TEST(Datentraeger, TabelleLesen) {
    EXPECT_EQ(OktalEntschlüsseln("a\\040b\\011c\\134d\\12"), "a b\tc\\d\\12");
    EXPECT_EQ(HexEntschlüsseln("USB\\x20Stick\\x2f2\\xZZ"), "USB Stick/2\\xZZ");
    const auto tabelle = EinhängungenLesen(kTabelle);
    ASSERT_EQ(tabelle.size(), 8u);  // die kaputten Zeilen fehlen
    EXPECT_EQ(tabelle[1].punkt, "/media/anna/USB STICK");
    EXPECT_EQ(tabelle[1].typ, "vfat");
    EXPECT_EQ(tabelle[1].quelle, "/dev/sdb1");
    EXPECT_EQ(tabelle[1].major, 8u);
    EXPECT_EQ(tabelle[1].minor, 17u);
    EXPECT_EQ(MedienWurzelForm("/media/anna/CD/a/b.mp3"), "/media/anna/CD");
    EXPECT_EQ(MedienWurzelForm("/run/media/bob/Disk"), "/run/media/bob/Disk");
    EXPECT_EQ(MedienWurzelForm("/mnt/weg/x"), "/mnt/weg");
    EXPECT_EQ(MedienWurzelForm("/media/anna"), "");
    EXPECT_EQ(MedienWurzelForm("/mnt/"), "");
    EXPECT_EQ(MedienWurzelForm("/medien/anna/CD"), "");
}

TEST(Datentraeger, WurzelWechselmediumBezeichnung) {
    Aufbau a;
    LinuxDatenträger d(a.Quellen());
    EXPECT_EQ(d.Wurzel("/media/anna/USB STICK/musik/a.mp3"), "/media/anna/USB STICK");
    EXPECT_EQ(d.Wurzel("/daten/a.mp3"), "/daten");
    EXPECT_EQ(d.Wurzel("/datenbank/a.mp3"), "/");
    EXPECT_EQ(d.Wurzel("/media/anna/CD/a.mp3"), "/media/anna/CD");  // nicht eingehängt
    EXPECT_EQ(d.Wurzel("/run/media/bob/Disk/a.mp3"), "/run/media/bob/Disk");
    EXPECT_EQ(d.Wurzel("/mnt/netz/a.mp3"), "/mnt/netz");
    EXPECT_EQ(d.Wurzel("/media/anna"), "/");
    EXPECT_EQ(d.Wurzel("relativ.mp3"), "");

    for (const char* w : {"/media/anna/USB STICK", "/media/anna/CDROM", "/mnt/netz", "/tmp", "/media/anna/Karte",
                          "/srv/wechsel", "/media/anna/CD", "/mnt/weg"})
        EXPECT_TRUE(d.IstWechselmedium(w)) << w;
    for (const char* w : {"/", "/daten", "/home", ""}) EXPECT_FALSE(d.IstWechselmedium(w)) << w;

    // Dieselbe Wurzel zweimal: eine Prüfung.
    const auto geprüft = d.MedienGeprüft();
    EXPECT_TRUE(d.IstWechselmedium("/mnt/netz"));
    EXPECT_TRUE(d.IstWechselmedium("/mnt/netz"));
    EXPECT_EQ(d.MedienGeprüft(), geprüft + 1);

    EXPECT_EQ(d.Bezeichnung("/media/anna/USB STICK"), "USB STICK");
    EXPECT_EQ(d.Bezeichnung("/daten"), "Daten");
    EXPECT_EQ(d.Bezeichnung("/media/anna/CDROM"), "CDROM");  // ohne Namen: der Ordner
    EXPECT_EQ(d.Bezeichnung("/media/anna/CD"), "CD");
    EXPECT_EQ(d.TabelleGelesen(), 1);

    // Die CD wird eingehängt: die Tabelle wird neu gelesen, die Wurzel bleibt, jetzt als udf.
    DateiSchreiben(a.o / "mountinfo", kTabelle + "40 22 11:1 / /media/anna/CD ro - udf /dev/sr1 ro\n");
    EXPECT_EQ(d.Wurzel("/media/anna/CD/a.mp3"), "/media/anna/CD");
    EXPECT_EQ(d.TabelleGelesen(), 2);
    EXPECT_TRUE(d.IstWechselmedium("/media/anna/CD"));
}

TEST(Datentraeger, EchteTabelleWirdNurBeiAenderungGelesen) {
    LinuxDatenträger d;
    for (int i = 0; i < 1000; ++i) EXPECT_FALSE(d.Wurzel("/etc/passwd").empty());
    EXPECT_EQ(d.TabelleGelesen(), 1);
}

// The kept traffic as a capture file (pcap, microseconds, Ethernet), which Wireshark's tools read.
//
// Only what the masters and the station said is real; the layers below are made up around it so that they are right:
// Ethernet addresses of no card, IPv4 or IPv6 and TCP with true checksums, sequence numbers that go on from 1 in both
// directions of a connection.
#pragma once

#include "modbus/Trafico.h"

#include <string>

std::string comoPcap(const Trafico& trafico);

# shellcheck shell=bash
# A print server of one's own, with printers that keep what they are sent. Sourced after desktop.sh.

# StartPrintServer: its process id is in printServer; what a printer is sent lies in $arrived as
# <job>.pdf. CUPS_SERVER points at it.
StartPrintServer() {
    local root=$scratch/cups user group kind
    arrived=$root/arrived
    mkdir -p "$root"/{etc,spool/tmp,cache,run,log,arrived,bin/backend}
    for kind in filter daemon notifier monitor cgi-bin; do ln -s "/usr/lib/cups/$kind" "$root/bin/$kind"; done
    # It refuses to print as root; root's jobs are kept by a backend that only root may run.
    user=$(id -un) group=$(id -gn)
    [[ $user != root ]] || { user=lp group=lp; chmod 711 "$scratch"; }
    cat >"$root/etc/cups-files.conf" <<END
ServerRoot $root/etc
ServerBin $root/bin
CacheDir $root/cache
StateDir $root/run
RequestRoot $root/spool
TempDir $root/spool/tmp
AccessLog $root/log/access
ErrorLog $root/log/error
PageLog $root/log/page
User $user
Group $group
SystemGroup $(id -gn)
END
    cat >"$root/etc/cupsd.conf" <<END
Listen $root/socket
Browsing Off
WebInterface No
<Location />
Allow all
</Location>
<Policy default>
<Limit All>
Allow all
</Limit>
</Policy>
END
    cat >"$root/bin/backend/keep" <<END
#!/bin/sh
[ \$# -gt 0 ] || { echo 'direct keep "Unknown" "Keeps what is printed"'; exit; }
cat \${6:+"\$6"} >$arrived/\$1.part && mv $arrived/\$1.part $arrived/\$1.pdf
END
    chmod "$([[ $user == lp ]] && echo 700 || echo 755)" "$root/bin/backend/keep"
    export CUPS_SERVER=$root/socket
    Start env PATH="$PATH:/usr/sbin" cupsd -f -c "$root/etc/cupsd.conf" -s "$root/etc/cups-files.conf"
    printServer=$lastStarted
    WaitFor "$kPatience" PrintServerRuns || Fail 'the print server does not start'
}
PrintServerRuns() { [[ $(lpstat -r 2>/dev/null) == *'is running' ]]; }

# AddPrinter <name> <width> <height>: of such paper, in points, with margins of 18.
AddPrinter() {
    local ppd=$scratch/$1.ppd
    cat >"$ppd" <<END
*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KEEP.PPD"
*Product: "($1)"
*PSVersion: "(3010.000) 0"
*Manufacturer: "Kestrel"
*ModelName: "$1"
*ShortNickName: "$1"
*NickName: "$1"
*cupsFilter2: "application/pdf application/pdf 0 -"
*ColorDevice: True
*DefaultColorSpace: RGB
*OpenUI *PageSize/Paper: PickOne
*DefaultPageSize: $1
*PageSize $1/$1: "<</PageSize[$2 $3]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: $1
*PageRegion $1/$1: "<</PageSize[$2 $3]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: $1
*ImageableArea $1/$1: "18 18 $(($2 - 18)) $(($3 - 18))"
*DefaultPaperDimension: $1
*PaperDimension $1/$1: "$2 $3"
END
    PATH=$PATH:/usr/sbin lpadmin -p "$1" -E -v keep:/ -P "$ppd" 2>/dev/null
}

# HasArrived <job>
HasArrived() { [[ -s $arrived/$1.pdf ]]; }

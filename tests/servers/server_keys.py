"""Keys and certificates made on first start and kept in the state dir, so a
restarted server presents the same identity."""

import datetime
import ipaddress
import os


def certificate(state_dir):
    """(certificate path, key path) of a self-signed certificate for 127.0.0.1."""
    from cryptography import x509
    from cryptography.hazmat.primitives import hashes, serialization
    from cryptography.hazmat.primitives.asymmetric import ec
    from cryptography.x509.oid import NameOID

    cert_path = os.path.join(state_dir, "server_cert.pem")
    key_path = os.path.join(state_dir, "server_key.pem")
    if os.path.exists(cert_path) and os.path.exists(key_path):
        return cert_path, key_path

    # An EC key is made in a millisecond; RSA would slow every start.
    key = ec.generate_private_key(ec.SECP256R1())
    name = x509.Name([x509.NameAttribute(NameOID.COMMON_NAME, "127.0.0.1")])
    now = datetime.datetime.now(datetime.timezone.utc)
    cert = (
        x509.CertificateBuilder()
        .subject_name(name)
        .issuer_name(name)
        .public_key(key.public_key())
        .serial_number(x509.random_serial_number())
        .not_valid_before(now - datetime.timedelta(days=1))
        .not_valid_after(now + datetime.timedelta(days=365))
        .add_extension(
            x509.SubjectAlternativeName(
                [x509.IPAddress(ipaddress.ip_address("127.0.0.1")), x509.DNSName("localhost")]
            ),
            critical=False,
        )
        .add_extension(x509.BasicConstraints(ca=True, path_length=None), critical=True)
        .sign(key, hashes.SHA256())
    )
    with open(key_path, "wb") as f:
        f.write(
            key.private_bytes(
                serialization.Encoding.PEM,
                serialization.PrivateFormat.PKCS8,
                serialization.NoEncryption(),
            )
        )
    with open(cert_path, "wb") as f:
        f.write(cert.public_bytes(serialization.Encoding.PEM))
    return cert_path, key_path


def ed25519_key(path):
    """The Ed25519 key at `path` (public half at path.pub), made if missing.

    Ed25519 because Debian 12's libssh2 signs RSA only with SHA-1."""
    import asyncssh

    if not os.path.exists(path):
        key = asyncssh.generate_private_key("ssh-ed25519")
        key.write_private_key(path)
        key.write_public_key(path + ".pub")
    return asyncssh.read_private_key(path)
